#pragma once

#include <curl/curl.h>

namespace velk::erp::inline v4::tarn::detail::soap {

// CURLOPT_SSL_CTX_FUNCTION of every exchange: puts the certificate and the
// private key of the PKCS#12 bundle at `auth` (a connection::auth_impl, read as
// its first member) into OpenSSL's context from memory, so they never touch the
// disk. Answers 0, or the libcurl code of the failure: 4 when libcurl does not
// run on OpenSSL, 43 without a bundle, 58 when OpenSSL refuses the certificate,
// 35 when it refuses the key, 27 when memory runs out. Never throws.
CURLcode use_client_certificate(CURL* handle, void* ssl_context, void* auth);

}  // namespace velk::erp::inline v4::tarn::detail::soap

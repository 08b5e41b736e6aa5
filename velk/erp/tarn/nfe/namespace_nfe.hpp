#pragma once

namespace velk::erp::inline v4::tarn::nfe {

// The namespace of the NF-e schemas published by the national fiscal portal:
// every message root (consStatServ, NFe, envEvento...) declares it.
inline constexpr char namespace_nfe[] = "http://www.portalfiscal.inf.br/nfe";

}  // namespace velk::erp::inline v4::tarn::nfe

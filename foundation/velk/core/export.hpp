#pragma once

// What a shared library of the family shows its callers. The libraries are
// built with hidden visibility, so only the classes, functions and variables
// marked here enter their dynamic symbol tables; everything else (the detail
// namespaces, the document builders and writers) stays inside the library
// that defines it and may change without notice.
#define VELK_EXPORT __attribute__((visibility("default")))

#include "sparse/blas_name.h"

#include <cstring>

#include "sparse/blas.h"

#ifdef QUARN_WITH_MKL
#include <mkl_version.h>
#endif

#define QUARN_TEXT_OF(x) #x
#define QUARN_TEXT(x) QUARN_TEXT_OF(x)

namespace quarn {

#if defined(QUARN_WITH_MKL)
const char* blasName() noexcept { return "MKL " QUARN_TEXT(__INTEL_MKL__) "." QUARN_TEXT(__INTEL_MKL_UPDATE__); }
#elif defined(OPENBLAS_VERSION)
const char* blasName() noexcept {
  // The headers have blanks around it.
  static char text[] = OPENBLAS_VERSION;
  std::size_t end = std::strlen(text);
  while (end > 0 && text[end - 1] == ' ') text[--end] = '\0';
  return text + std::strspn(text, " ");
}
#else
const char* blasName() noexcept { return "a CBLAS without a name"; }
#endif

}  // namespace quarn

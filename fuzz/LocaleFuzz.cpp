// Any text as the locale of the environment.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <unicode/uclean.h>

#include "fuzz/Check.h"
#include "i18n/SystemLanguage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string name(reinterpret_cast<const char*>(data), size);
  setenv("LC_ALL", name.c_str(), 1);
  const std::uint32_t language = SystemLanguageId();
  Check(language > 0 && language <= UINT16_MAX);
  // The locale library reads its default from the environment only once, so it has to be reset.
  u_cleanup();
  return 0;
}

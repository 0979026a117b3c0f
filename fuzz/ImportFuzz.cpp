// Any bytes as the rows of a table of projectors: what is taken from it can be read again.

#include <cstddef>
#include <cstdint>

#include "fleet/ProfileCsv.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "fuzz/Check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray rows(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const CsvImport import = ImportCsv(
      ProfileEdits::kNoProfiles,
      "name,address,port,link,password,model,identity,mac,tags,notes,lamp life,snapshot\n" + rows);
  Check(import.added == 0 || ParseProfileList(import.text, "p.json").error.isEmpty());
  return 0;
}

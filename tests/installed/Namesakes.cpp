#include "Namesakes.h"

#include <string_view>

class QWidget;

namespace {

int calls = 0;

}  // namespace

int NamesakeCalls() { return calls; }

// Functions and classes of a host that have the same names as internal ones of the library. A few
// examples suffice: a check compares the exported symbols with exported-symbols.txt. It does not
// cover inline members, such as those of the types here.

int LoadCatalog() { return ++calls; }
void LocalizeControlTexts(int, QWidget&) { ++calls; }

struct Range {
  Range() { ++calls; }
  Range(int, int) { ++calls; }
};
Range ParseRange(std::string_view, int, Range) {
  ++calls;
  return {};
}

struct ModelData {
  ModelData() { ++calls; }
  ModelData(const ModelData&) { ++calls; }
  ~ModelData() { ++calls; }
};

class StatusLine {
 public:
  explicit StatusLine(QWidget* parent);
};
StatusLine::StatusLine(QWidget*) { ++calls; }

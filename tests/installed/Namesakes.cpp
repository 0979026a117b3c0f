#include "Namesakes.h"

#include <string_view>

class QWidget;

namespace {

int calls = 0;

}  // namespace

int NamesakeCalls() { return calls; }

// None of this is the library's. A host may call its own functions and classes what it likes. These
// few stand for all: what the libraries show is held against exported-symbols.txt, but for inline
// members, such as those of the types here.

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

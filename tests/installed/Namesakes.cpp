#include "Namesakes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <QString>

class QWidget;
class CPjtInterface;

namespace {

int calls = 0;

}  // namespace

int NamesakeCalls() { return calls; }

// None of this is the library's. A host may call its own functions and classes what it likes.

int LoadCatalog() { return ++calls; }
int LoadCatalog(std::span<const std::string>) { return ++calls; }
void ReleaseCatalog() { ++calls; }
bool IsCatalogLoaded() { return ++calls != 0; }
std::string CatalogProblem() { return std::to_string(++calls); }
void GetCatalogText(int, int, int, char*) { ++calls; }
std::uint32_t SystemLanguageId() { return static_cast<std::uint32_t>(++calls); }
void LocalizeControlTexts(int, QWidget&) { ++calls; }
QString WindowText(const QWidget&) { return QString::number(++calls); }
void SetWindowText(QWidget&, const QString&) { ++calls; }

struct Range {
  Range() { ++calls; }
  Range(int, int) { ++calls; }
};
Range ParseRange(std::string_view, int, Range) {
  ++calls;
  return {};
}

struct Call {};
struct Answer {};
struct PageTable {};
struct ValueRow {};
struct Stepped {};
struct ModelData {
  ModelData() { ++calls; }
  ModelData(const ModelData&) { ++calls; }
  ~ModelData() { ++calls; }
};
Answer Perform(CPjtInterface&, const Call&, int, int) {
  ++calls;
  return {};
}
std::optional<int> Read(CPjtInterface&, const Call&) { return ++calls; }
bool Has(const PageTable&, std::size_t, int) { return ++calls != 0; }
Stepped Step(CPjtInterface&, const ValueRow&, bool, int, Range, int) {
  ++calls;
  return {};
}
Stepped Step(CPjtInterface&, const ValueRow&, const ModelData&, bool) {
  ++calls;
  return {};
}

class MessageCatalog {
 public:
  static std::optional<MessageCatalog> Load(const std::string& path);
};
std::optional<MessageCatalog> MessageCatalog::Load(const std::string&) {
  ++calls;
  return {};
}

class StatusLine {
 public:
  explicit StatusLine(QWidget* parent);
};
StatusLine::StatusLine(QWidget*) { ++calls; }

#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Advance;

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kRows[] = {
    Row(Left, Tab(Id::Tabs)),
    Row(Bottom, Close(Id::Close, "27;Close")),
};

}  // namespace

const DialogTemplate kAdvanceTemplate{
    .number = TemplateId::Advance, .caption = "Advanced Control", .rows = kRows};

}  // namespace AdvancedControl

#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kRows[] = {
    Row(Left, Tab(20001)),
    Row(Bottom, Close(1, "27;Close")),
};

}  // namespace

const DialogTemplate kAdvanceTemplate{
    .number = TemplateId::Advance, .caption = "Advanced Control", .rows = kRows};

}  // namespace AdvancedControl

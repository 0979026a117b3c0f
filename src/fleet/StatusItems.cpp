#include "fleet/StatusItems.h"

#include <algorithm>
#include <string_view>

#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

namespace {

// In the order of `StatusItem`.
constexpr std::array<std::string_view, kStatusItems> kKeys{
    "status.power", "status.input-source", "status.error",     "status.blank",
    "status.mute",  "status.freeze",       "status.lamp-time", "status.filter-time"};

const StateRow& RowOf(StatusItem item) {
  static const auto kRows = [] {
    std::array<const StateRow*, kStatusItems> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i) {
      rows.at(i) = &std::get<StateRow>(*std::ranges::find(kStatusRows.rows, kKeys.at(i), KeyOf));
    }
    return rows;
  }();
  return *kRows.at(static_cast<std::size_t>(item));
}

/// The number of the text that the page shows.
int TextOf(StatusItem item, int value) {
  static const ModelData kAnyModel;  // only the sources are the model's own
  const StateRow& row = RowOf(item);
  const auto entries = row.texts.Of(kAnyModel);
  const int position = PositionOf(entries, value);
  return position < 0 ? row.otherwise
                      : entries[static_cast<std::size_t>(position)].text.value_or(row.otherwise);
}

PowerState PowerOf(int text) {
  if (text == ListText::On) return PowerState::On;
  return text == ListText::PowerCoolingDown ? PowerState::CoolingDown : PowerState::Standby;
}

PartProblems ProblemsOf(int text) {
  struct ErrorText {
    int text;
    ProjectorPart part;
  };
  using Part = ProjectorPart;
  constexpr ErrorText kErrorTexts[] = {
      {ListText::ErrorFan, Part::Fan},          {ListText::ErrorLamp, Part::Lamp},
      {ListText::ErrorLampTime, Part::Lamp},    {ListText::ErrorTemperature, Part::Temperature},
      {ListText::ErrorCool, Part::Temperature}, {ListText::ErrorCover, Part::Cover},
      {ListText::ErrorAirFlow, Part::Filter},   {ListText::ErrorFilter, Part::Filter},
  };
  PartProblems problems{};
  if (text == ListText::ErrorNone) return problems;
  const auto* const found = std::ranges::find(kErrorTexts, text, &ErrorText::text);
  const Part part = found == std::end(kErrorTexts) ? Part::Other : found->part;
  problems.at(static_cast<std::size_t>(part)) = ProblemGrade::Error;
  return problems;
}

std::string SourceName(int value, const ModelData* model) {
  if (model == nullptr) return {};
  const auto entries = RowOf(StatusItem::Source).texts.Of(*model);
  const int position = PositionOf(entries, value);
  return position < 0 ? std::string()
                      : std::string(entries[static_cast<std::size_t>(position)].name);
}

}  // namespace

const Call& ReadingOf(StatusItem item) { return RowOf(item).read; }

std::optional<StatusItem> StatusItemOf(const PjtCommand& command) {
  const auto reads = [&](StatusItem item) { return ReadingOf(item).Command() == command; };
  const auto* const found = std::ranges::find_if(kAllStatusItems, reads);
  return found == kAllStatusItems.end() ? std::nullopt : std::optional(*found);
}

void TakeStatus(LiveState& state, StatusItem item, int value, const ModelData* model) {
  const auto isOn = [&] { return TextOf(item, value) != RowOf(item).otherwise; };
  switch (item) {
    case StatusItem::Power:
      return TakePower(state, PowerOf(TextOf(item, value)));
    case StatusItem::Source:
      state.source = {value, SourceName(value, model)};
      break;
    case StatusItem::Error:
      state.error = value;
      state.problems = ProblemsOf(TextOf(item, value));
      break;
    case StatusItem::Blank:
      state.blank = isOn();
      break;
    case StatusItem::Mute:
      state.mute = isOn();
      break;
    case StatusItem::Freeze:
      state.freeze = isOn();
      break;
    case StatusItem::LampTime:
      state.lamps = {{value}};
      break;
    case StatusItem::FilterTime:
      state.filterHours = value;
      break;
  }
}

void ForgetStatus(LiveState& state, StatusItem item) {
  switch (item) {
    case StatusItem::Power:
      return state.power.reset();
    case StatusItem::Source:
      return state.source.reset();
    case StatusItem::Error:
      state.error.reset();
      return state.problems.reset();
    case StatusItem::Blank:
      return state.blank.reset();
    case StatusItem::Mute:
      return state.mute.reset();
    case StatusItem::Freeze:
      return state.freeze.reset();
    case StatusItem::LampTime:
      return state.ForgetLit();
    case StatusItem::FilterTime:
      break;  // hours hold until there are others
  }
}

void TakePower(LiveState& state, PowerState power) {
  state.power = power;
  if (power == PowerState::Standby) state.ForgetPicture();
}

}  // namespace AdvancedControl

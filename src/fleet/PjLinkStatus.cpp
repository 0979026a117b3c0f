#include "fleet/PjLinkStatus.h"

#include <algorithm>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace PjLinkStatus {

namespace {

/// What the answer contains besides a device value.
void TakeMore(LiveState& state, StatusItem item, std::string_view answer,
              std::span<const PjLinkInput> inputs) {
  switch (item) {
    case StatusItem::Power:
      if (const auto power = PjLink::Power(answer)) TakePower(state, *power);
      break;
    case StatusItem::Error:
      state.problems = PjLink::ErrorGrades(answer);
      break;
    case StatusItem::LampTime:
      if (auto lamps = PjLink::Lamps(answer); !lamps.empty()) state.lamps = std::move(lamps);
      break;
    case StatusItem::Source: {
      if (!state.source || !state.source->name.empty()) break;
      const auto known = std::ranges::find(inputs, state.source->number, &PjLinkInput::number);
      if (known != inputs.end()) state.source->name = known->name;
      break;
    }
    default:
      break;
  }
}

}  // namespace

std::span<const Question> Questions() {
  static const auto kQuestions = [] {
    std::vector<Question> questions;
    for (const StatusItem item : kAllStatusItems) {
      const PjLinkMapping* const mapping = PjLinkMapping::Find(ReadingOf(item).Command());
      const auto same = std::ranges::find(questions, mapping->command, [](const auto& question) {
        return question.mapping->command;
      });
      if (same == questions.end()) {
        questions.push_back({mapping, {item}});
      } else {
        same->items.push_back(item);
      }
    }
    return questions;
  }();
  return kQuestions;
}

const Question* FindQuestion(std::string_view command) {
  const auto questions = Questions();
  const auto found = std::ranges::find_if(questions, [&](const Question& question) {
    return PjLink::SameWord(question.mapping->command, command);
  });
  return found == questions.end() ? nullptr : &*found;
}

void Take(LiveState& state, const Question& question, std::string_view answer,
          const ModelData* model, std::span<const PjLinkInput> inputs) {
  for (const StatusItem item : question.items) {
    const auto value = PjLinkMapping::Find(ReadingOf(item).Command())->value(answer);
    if (value) {
      TakeStatus(state, item, *value, model);
    } else {
      ForgetStatus(state, item);
    }
  }
  TakeMore(state, question.items.front(), answer, inputs);
}

}  // namespace PjLinkStatus

}  // namespace AdvancedControl

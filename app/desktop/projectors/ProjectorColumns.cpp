#include "app/desktop/projectors/ProjectorColumns.h"

#include <array>
#include <chrono>

#include "app/desktop/projectors/StateTexts.h"

namespace {

constexpr std::array<const char*, ProjectorColumns::ColumnCount> kTitles{
    QT_TRANSLATE_NOOP("ProjectorColumns", "Name"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "State"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Power"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Source"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Lamp"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Problem"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Model"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Place"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Settings"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Last answer"),
    QT_TRANSLATE_NOOP("ProjectorColumns", "Address")};

constexpr int kManyHours = 12'345;

QStringList StateSamples() {
  QStringList samples;
  ProjectorRow row{.id = {}, .profile = {}};
  row.isWatched = true;
  for (const auto reachability : {Reachability::NeverAsked, Reachability::Silent,
                                  Reachability::WrongPassword, Reachability::NotUnderstood}) {
    row.state.reachability = reachability;
    samples += ProjectorColumns::Text(row, ProjectorColumns::State);
  }
  row.state.reachability = Reachability::Answers;
  row.isOpen = true;
  for (const auto grade : {ProblemGrade::None, ProblemGrade::Warning, ProblemGrade::Error}) {
    row.state.problems = PartProblems{grade};
    samples += ProjectorColumns::Text(row, ProjectorColumns::State);
  }
  return samples;
}

}  // namespace

QString ProjectorColumns::Title(int column) {
  return tr(kTitles[static_cast<std::size_t>(column)]);
}

bool ProjectorColumns::ShowsState(int column) {
  return column != Name && column != Model && column != Place && column != Address;
}

std::optional<double> ProjectorColumns::Number(const ProjectorRow& row, int column) {
  switch (column) {
    case State:
      return -static_cast<double>(HealthOf(row));  // the most urgent first
    case Power:
      return row.state.power ? static_cast<double>(*row.state.power) : -1;
    case Lamp:
      return LampHoursOf(row.state);
    case Settings:
      return row.state.drift.value_or(-1);
    case Answered:
      return row.state.answered
                 ? static_cast<double>(-row.state.answered->time_since_epoch().count())
                 : 0.0;
    default:
      return std::nullopt;
  }
}

QString ProjectorColumns::Text(const ProjectorRow& row, int column) {
  switch (column) {
    case Name:
      return QString::fromStdString(row.profile.name);
    case State: {
      QString text = StateTexts::State(row);
      if (row.state.drift.value_or(0) > 0)
        text += QStringLiteral(" · ") + StateTexts::Drift(row.state);
      return row.isOpen ? tr("%1 · open").arg(text) : text;
    }
    case Power:
      return StateTexts::Power(row.state);
    case Source:
      return StateTexts::Source(row.state, row.profile.model);
    case Lamp:
      return StateTexts::LampHours(row.state);
    case Problem:
      return StateTexts::Problems(row.state);
    case Model:
      return QString::fromStdString(row.profile.model->info.ModelName);
    case Place: {
      QStringList tags;
      for (const std::string& tag : row.profile.tags) tags += QString::fromStdString(tag);
      return tags.join(QStringLiteral(", "));
    }
    case Settings:
      return StateTexts::Drift(row.state);
    case Answered:
      return StateTexts::Answered(row.state, std::chrono::system_clock::now());
    case Address:
      return ConnectionText(row.profile.connection);
    default:
      return {};
  }
}

// What users write themselves is as in the profiles that come with the program.
QStringList ProjectorColumns::Samples(int column) {
  using namespace std::chrono_literals;
  switch (column) {
    case Name:
      return {QStringLiteral("Lecture Hall 12")};
    case State:
      return StateSamples();
    case Power: {
      QStringList samples;
      for (const auto power :
           {PowerState::Standby, PowerState::On, PowerState::CoolingDown, PowerState::WarmingUp})
        samples += StateTexts::Power(power);
      return samples;
    }
    case Source:
      return {QStringLiteral("Component")};
    case Lamp:
      return {StateTexts::Hours(kManyHours)};
    case Problem: {
      QStringList samples;
      for (std::size_t part = 0; part < PartProblems().size(); ++part)
        samples += StateTexts::Part(static_cast<ProjectorPart>(part));
      return samples;
    }
    case Model:
      return {QStringLiteral("Model 4-11 b")};
    case Place:
      return ShortSamples(column) + QStringList(QStringLiteral("Building A, Seminar rooms"));
    case Settings:
      return {StateTexts::Drift({.drift = 0}), StateTexts::Drift({.drift = 12})};
    case Answered:
      return {StateTexts::Ago(59s), StateTexts::Ago(59min), StateTexts::Ago(23h)};
    default:
      return {QStringLiteral("192.168.100.100:4352")};
  }
}

QStringList ProjectorColumns::ShortSamples(int column) {
  if (column == Place) return {QStringLiteral("Building A")};
  if (column != State) return Samples(column);
  ProjectorRow row{.id = {}, .profile = {}};
  row.isWatched = true;
  row.state.reachability = Reachability::Silent;
  QStringList samples{Text(row, State)};
  row.state.reachability = Reachability::Answers;
  for (const auto grade : {ProblemGrade::Warning, ProblemGrade::Error}) {
    row.state.problems = PartProblems{grade};
    samples += Text(row, State);
  }
  return samples;
}

#include "app/desktop/projectors/StateTexts.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <map>

#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>

#include "app/desktop/projectors/ByModel.h"
#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "settings/ModelSettings.h"

namespace {

constexpr int kIconSize = 16;
constexpr const char* kArrow = " → ";

using std::chrono::floor;

/// Without PJLink's number of the input, which follows the name.
QString ShownName(const std::string& name) {
  static const QRegularExpression number(QStringLiteral(R"( \(\d+\)$)"));
  return QString::fromStdString(name).remove(number);
}

/// The text of the status page for a source. Keeps it, since a list may ask for thousands.
QString NameInModel(const std::shared_ptr<const ProfileModel>& model, int number) {
  using Names = std::map<int, QString>;
  static ByModel<ProfileModel, Names> models;
  if (!model) return {};
  const auto [name, isNew] = models.Of(model, [] { return Names(); }).try_emplace(number);
  if (!isNew) return name->second;
  const ModelSettings settings(model->data);
  const ModelSetting* source = settings.Find("status.input-source");
  if (source == nullptr) return {};
  const int place = PositionOf(source->entries, number);
  if (place < 0) return {};
  const ListEntry& entry = source->entries[static_cast<std::size_t>(place)];
  name->second = entry.text ? CatalogString(kListCategory, *entry.text)
                            : QString::fromStdString(std::string(entry.name));
  return name->second;
}

QString NameOf(int number, const std::string& name,
               const std::shared_ptr<const ProfileModel>& model) {
  const QString shown = name.empty() ? NameInModel(model, number) : ShownName(name);
  return shown.isEmpty() ? QString::number(number) : shown;
}

void Fill(QPainter& painter, std::initializer_list<QPointF> corners) {
  painter.drawPolygon(std::data(corners), static_cast<int>(corners.size()));
}

QPixmap Draw(Health health, double scale) {
  const int side = qRound(kIconSize * scale);
  QPixmap pixmap(side, side);
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box(3, 3, 10, 10);
  switch (health) {
    case Health::Good:
      painter.setPen(Qt::NoPen);
      painter.setBrush(QColor(0x2E, 0x9E, 0x4F));
      painter.drawEllipse(box);
      break;
    case Health::Warning:
      painter.setPen(Qt::NoPen);
      painter.setBrush(QColor(0xE0, 0x9A, 0x10));
      Fill(painter, {QPointF(8, 2), QPointF(14.5, 13.5), QPointF(1.5, 13.5)});
      break;
    case Health::Error:
      painter.setPen(Qt::NoPen);
      painter.setBrush(QColor(0xD0, 0x36, 0x30));
      Fill(painter, {QPointF(8, 1.5), QPointF(14.5, 8), QPointF(8, 14.5), QPointF(1.5, 8)});
      break;
    case Health::Unreachable:
      painter.setPen(QPen(QColor(0xC0, 0x50, 0x48), 2));
      painter.drawLine(QPointF(4, 4), QPointF(12, 12));
      painter.drawLine(QPointF(12, 4), QPointF(4, 12));
      break;
    case Health::NotAsked:
      painter.setPen(QPen(QColor(0x8A, 0x8A, 0x8A), 1.5));
      painter.drawEllipse(box.adjusted(1, 1, -1, -1));
      break;
  }
  return pixmap;
}

/// The sign on a white outline, which can be seen on the color of a selected row.
QPixmap DrawOutlined(Health health, double scale) {
  const QPixmap sign = Draw(health, scale);
  QPixmap white = sign;
  QPainter whitening(&white);
  whitening.setCompositionMode(QPainter::CompositionMode_SourceIn);
  whitening.fillRect(QRect(0, 0, kIconSize, kIconSize), Qt::white);
  whitening.end();
  QPixmap outlined = sign;
  QPainter painter(&outlined);
  for (const double x : {-1.0, 0.0, 1.0}) {
    for (const double y : {-1.0, 0.0, 1.0}) painter.drawPixmap(QPointF(x, y), white);
  }
  painter.drawPixmap(0, 0, sign);
  return outlined;
}

}  // namespace

QString StateTexts::State(const ProjectorRow& row) {
  if (!row.isWatched) return tr("Not watched");
  switch (row.state.reachability) {
    case Reachability::NeverAsked:
      return tr("Asking…");
    case Reachability::Silent:
      return row.state.connection == ConnectionState::NameUnknown ? tr("Unknown host")
                                                                  : tr("No answer");
    case Reachability::WrongPassword:
      return tr("Wrong password");
    case Reachability::NotUnderstood:
      return tr("Not understood");
    case Reachability::Answers:
      break;
  }
  switch (HealthOf(row)) {
    case Health::Error:
      return tr("Error");
    case Health::Warning:
      return tr("Warning");
    default:
      return tr("OK");
  }
}

QString StateTexts::Power(PowerState power) {
  switch (power) {
    case PowerState::Standby:
      return tr("Standby");
    case PowerState::On:
      return tr("On");
    case PowerState::CoolingDown:
      return tr("Cooling down");
    case PowerState::WarmingUp:
      return tr("Warming up");
  }
  return {};
}

QString StateTexts::Power(const LiveState& state) {
  return state.power ? Power(*state.power) : QString();
}

QString StateTexts::Source(const LiveState& state,
                           const std::shared_ptr<const ProfileModel>& model) {
  return state.source ? NameOf(state.source->number, state.source->name, model) : QString();
}

QString StateTexts::Part(ProjectorPart part) {
  switch (part) {
    case ProjectorPart::Fan:
      return tr("Fan");
    case ProjectorPart::Lamp:
      return tr("Lamp");
    case ProjectorPart::Temperature:
      return tr("Temperature");
    case ProjectorPart::Cover:
      return tr("Cover");
    case ProjectorPart::Filter:
      return tr("Filter");
    case ProjectorPart::Other:
      return tr("Other");
  }
  return {};
}

QString StateTexts::Problems(const LiveState& state) {
  if (!state.problems) return {};
  QStringList all;
  for (std::size_t i = 0; i < state.problems->size(); ++i) {
    const ProblemGrade grade = (*state.problems)[i];
    if (grade == ProblemGrade::None) continue;
    const QString part = Part(static_cast<ProjectorPart>(i));
    all += grade == ProblemGrade::Error ? part : tr("%1 (warning)").arg(part);
  }
  return all.join(QStringLiteral(" · "));
}

QString StateTexts::Hours(int hours) { return tr("%1 h").arg(QLocale().toString(hours)); }

QString StateTexts::LampHours(const LiveState& state) {
  const int hours = LampHoursOf(state);
  return hours < 0 ? QString() : Hours(hours);
}

QString StateTexts::Drift(const LiveState& state) {
  if (!state.drift) return {};
  return *state.drift == 0 ? tr("As it should be")
                           : tr("%n differ", "settings", static_cast<int>(*state.drift));
}

QString StateTexts::Ago(std::chrono::seconds age) {
  using namespace std::chrono;
  if (age < minutes(1)) return tr("%1 s ago").arg(std::max<qlonglong>(0, age.count()));
  if (age < hours(1)) return tr("%1 min ago").arg(floor<minutes>(age).count());
  return tr("%1 h ago").arg(floor<hours>(age).count());
}

QString StateTexts::Answered(const LiveState& state, WallTime now) {
  if (!state.answered) return {};
  return Ago(floor<std::chrono::seconds>(now - *state.answered));
}

QString StateTexts::Change(const StateChange& change,
                           const std::shared_ptr<const ProfileModel>& model) {
  const auto text = [&](const FieldValue& value) -> QString {
    if (!value.number) return tr("unknown");
    if (change.field == StateField::Source) return NameOf(*value.number, value.name, model);
    switch (change.field) {
      case StateField::Reachability: {
        ProjectorRow row{.id = {}, .profile = {}};
        row.isWatched = true;
        row.state.reachability = static_cast<Reachability>(*value.number);
        return State(row);
      }
      case StateField::Power:
        return Power(static_cast<PowerState>(*value.number));
      case StateField::Problem:
        return *value.number == 0 ? tr("OK") : *value.number == 1 ? tr("Warning") : tr("Error");
      case StateField::Blank:
      case StateField::Mute:
      case StateField::Freeze:
        return *value.number == 0 ? tr("off") : tr("on");
      default:
        return QString::number(*value.number);
    }
  };
  const auto name = [&change] {
    switch (change.field) {
      case StateField::Reachability:
        return tr("State");
      case StateField::Power:
        return tr("Power");
      case StateField::Source:
        return tr("Source");
      case StateField::Problem:
        return Part(static_cast<ProjectorPart>(change.index));
      case StateField::Blank:
        return tr("Blank");
      case StateField::Mute:
        return tr("Mute");
      case StateField::Freeze:
        return tr("Freeze");
      case StateField::LampHours:
        return tr("Lamp");
      case StateField::FilterHours:
        return tr("Filter");
      default:
        return tr("Settings that differ");
    }
  };
  if (!change.before.number) return tr("%1: %2").arg(name(), text(change.now));
  return tr("%1: %2").arg(name(),
                          text(change.before) + QString::fromUtf8(kArrow) + text(change.now));
}

QIcon StateTexts::Icon(Health health) {
  static std::map<Health, QIcon> icons;
  QIcon& icon = icons[health];
  if (icon.isNull()) {
    // One for each usual scale of a screen, and not stained in selected rows.
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
      icon.addPixmap(Draw(health, scale));
      icon.addPixmap(DrawOutlined(health, scale), QIcon::Selected);
    }
  }
  return icon;
}

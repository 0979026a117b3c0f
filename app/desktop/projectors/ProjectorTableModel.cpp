#include "app/desktop/projectors/ProjectorTableModel.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"

namespace {

constexpr std::array<const char*, ProjectorTableModel::ColumnCount> kTitles{
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Name"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "State"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Model"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Type"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Code"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Connection")};

constexpr auto kUpdateInterval = std::chrono::milliseconds(300);
constexpr std::chrono::seconds kLongAgo{10};

const char* ConnectionName(ConnectionState state) {
  switch (state) {
    case ConnectionState::None:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Simulated");
    case ConnectionState::Unused:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Not connected");
    case ConnectionState::Connecting:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Connecting");
    case ConnectionState::Connected:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Connected");
    case ConnectionState::WrongParameters:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Wrong parameters");
    case ConnectionState::NameUnknown:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Unknown host");
    case ConnectionState::NotReachable:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Not reachable");
    case ConnectionState::NoAnswer:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "No answer");
    case ConnectionState::Lost:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Connection lost");
    case ConnectionState::NotUnderstood:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Answers not understood");
    case ConnectionState::OtherVersion:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Other protocol version");
    case ConnectionState::PasswordRequired:
      return QT_TRANSLATE_NOOP("ProjectorTableModel", "Password missing or wrong");
  }
  return "";
}

QString ConnectionStatusText(const ProjectorSession& session) {
  return ConnectionStatusText(session.Connection(), session.SinceAnswer());
}

bool HasRows(PageId page, int modelCode) {
  const PageTable& table = TableOf(page);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const bool isReset = std::holds_alternative<ResetRow>(table.rows[row]);
    if (!isReset && Has(table, row, modelCode)) return true;
  }
  return false;
}

}  // namespace

QString ConnectionStatusText(ConnectionState state,
                             std::optional<std::chrono::seconds> sinceAnswer) {
  using std::chrono::floor;
  QString text = ProjectorTableModel::tr(ConnectionName(state));
  const bool isWell = state == ConnectionState::Connected || state == ConnectionState::Unused;
  if (!isWell || !sinceAnswer || *sinceAnswer < kLongAgo) return text;
  const auto answered = [&]<class Unit>(const QString& unitText, Unit step) {
    const auto count = floor<Unit>(*sinceAnswer).count() / step.count() * step.count();
    return text + QStringLiteral(" · ") + unitText.arg(count);
  };
  if (*sinceAnswer < std::chrono::minutes(1)) {
    return answered(ProjectorTableModel::tr("answered %1 s ago"), kLongAgo);
  }
  if (*sinceAnswer < std::chrono::hours(1)) {
    return answered(ProjectorTableModel::tr("answered %1 min ago"), std::chrono::minutes(1));
  }
  return answered(ProjectorTableModel::tr("answered %1 h ago"), std::chrono::hours(1));
}

QStringList TabNames(const CModelInfo2& model) {
  QStringList names{CatalogString(kCaptionCategory, Caption::TabStatus)};
  for (const PageTab& tab : TabsOf(model.DialogType, model.ModelCode)) {
    names += CatalogString(kCaptionCategory, tab.caption);
  }
  return names;
}

bool HasRowsOnEveryTab(const CModelInfo2& model) {
  const auto tabs = TabsOf(model.DialogType, model.ModelCode);
  return !tabs.empty() && std::ranges::all_of(tabs, [&model](const PageTab& tab) {
    return HasRows(tab.page, model.ModelCode);
  });
}

ProjectorTableModel::ProjectorTableModel(QObject* parent) : QAbstractTableModel(parent) {
  update_.setInterval(kUpdateInterval);
  connect(&update_, &QTimer::timeout, this, &ProjectorTableModel::UpdateConnections);
}

// Only real projectors have a connection whose state can change.
void ProjectorTableModel::SetSessions(Sessions sessions) {
  beginResetModel();
  sessions_ = std::move(sessions);
  connections_.clear();
  for (const auto& session : sessions_) connections_ += ConnectionStatusText(*session);
  if (std::ranges::all_of(sessions_, [](const auto& session) {
        return session->Connection() == ConnectionState::None;
      })) {
    update_.stop();
  } else {
    update_.start();
  }
  std::erase_if(states_, [this](const auto& state) {
    return std::ranges::find(sessions_, state.first, &std::shared_ptr<ProjectorSession>::get) ==
           sessions_.end();
  });
  endResetModel();
}

void ProjectorTableModel::SetState(const ProjectorSession* session, const QString& state) {
  const auto found = std::ranges::find(sessions_, session, &std::shared_ptr<ProjectorSession>::get);
  if (found == sessions_.end()) return;
  states_[session] = state;
  StateChanged(static_cast<std::size_t>(found - sessions_.begin()));
}

void ProjectorTableModel::UpdateConnections() {
  for (std::size_t row = 0; row < sessions_.size(); ++row) {
    const QString now = ConnectionStatusText(*sessions_[row]);
    if (std::exchange(connections_[static_cast<qsizetype>(row)], now) != now) StateChanged(row);
  }
}

void ProjectorTableModel::StateChanged(std::size_t row) {
  const QModelIndex cell = index(static_cast<int>(row), State);
  Q_EMIT dataChanged(cell, cell);
}

int ProjectorTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(sessions_.size());
}

int ProjectorTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProjectorTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ProjectorSession* session = sessions_[static_cast<std::size_t>(index.row())].get();
  const ProjectorProfile& profile = session->Profile();
  if (role == kTabsRole) return TabNames(profile.Model).join(QLatin1Char('\n'));
  // A narrow window cuts the state off.
  if (role == Qt::ToolTipRole && index.column() == State) role = Qt::DisplayRole;
  if (role == Qt::ToolTipRole) return TabNames(profile.Model).join(QStringLiteral(" · "));
  const bool isNumber = index.column() == DialogType || index.column() == ModelCode;
  if (role == Qt::TextAlignmentRole && isNumber) return QVariant(Qt::AlignCenter);
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case Name:
      return QString::fromStdString(profile.Name);
    case Model:
      return QString::fromStdString(profile.Model.ModelName);
    case DialogType:
      return profile.Model.DialogType;
    case ModelCode:
      return profile.Model.ModelCode;
    case Connection:
      return ConnectionText(profile.Model);
    case State: {
      const auto state = states_.find(session);
      const QString& connection = connections_[index.row()];
      return state == states_.end() || state->second.isEmpty()
                 ? connection
                 : state->second + QStringLiteral(" · ") + connection;
    }
    default:
      return {};
  }
}

QVariant ProjectorTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return tr(kTitles[static_cast<std::size_t>(section)]);
}

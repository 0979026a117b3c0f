#include "app/desktop/simulation/FaultPanel.h"

#include <algorithm>
#include <iterator>
#include <map>

#include <QCompleter>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>

#include "app/desktop/Mnemonic.h"
#include "simulator/SettingsTable.h"
#include "toolkit/CComboBox.h"
#include "toolkit/IsolatedText.h"

Q_DECLARE_METATYPE(FaultTarget)

namespace {

struct NamedValue {
  int value;
  const char* name;
};

constexpr NamedValue kPowerStates[] = {{0, QT_TRANSLATE_NOOP("FaultPanel", "Standby")},
                                       {1, QT_TRANSLATE_NOOP("FaultPanel", "On")},
                                       {2, QT_TRANSLATE_NOOP("FaultPanel", "Cooling down")}};
constexpr NamedValue kErrorStates[] = {
    {0, QT_TRANSLATE_NOOP("FaultPanel", "No error")},
    {1, QT_TRANSLATE_NOOP("FaultPanel", "Cover")},
    {2, QT_TRANSLATE_NOOP("FaultPanel", "Fan")},
    {3, QT_TRANSLATE_NOOP("FaultPanel", "Lamp")},
    {4, QT_TRANSLATE_NOOP("FaultPanel", "Temperature")},
    {5, QT_TRANSLATE_NOOP("FaultPanel", "Air flow")},
    {6, QT_TRANSLATE_NOOP("FaultPanel", "Lamp time")},
    {7, QT_TRANSLATE_NOOP("FaultPanel", "Cold")},
    {8, QT_TRANSLATE_NOOP("FaultPanel", "Filter")},
    {12, QT_TRANSLATE_NOOP("FaultPanel", "Filter time")},
    {99, QT_TRANSLATE_NOOP("FaultPanel", "Other (99)")},
};

struct NamedKind {
  Fault::Kind kind;
  const char* name;
};

constexpr NamedKind kKinds[] = {
    {Fault::Kind::Refuse, QT_TRANSLATE_NOOP("FaultPanel", "Refuse")},
    {Fault::Kind::FailRead, QT_TRANSLATE_NOOP("FaultPanel", "Fail reads")},
    {Fault::Kind::Late, QT_TRANSLATE_NOOP("FaultPanel", "Delay")},
    {Fault::Kind::DropOut, QT_TRANSLATE_NOOP("FaultPanel", "Drop out")},
};

constexpr int kMaximumDelay = 60000;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Command codes with the names of their settings. A few settings have several names, which differ
// between page sets.
std::map<std::uint16_t, QStringList> NamedCodes() {
  std::map<std::uint16_t, QStringList> codes;
  for (const std::uint16_t code : PlainCodes()) codes[code];
  for (const Setting& setting : SettingsTable()) {
    if (setting.code == 0) continue;
    QStringList& names = codes[setting.code];
    if (!names.contains(Text(setting.name))) names.append(Text(setting.name));
  }
  return codes;
}

void Fill(QComboBox& combo, std::span<const NamedValue> values) {
  for (const NamedValue& value : values) combo.addItem(FaultPanel::tr(value.name), value.value);
}

void SelectValue(QComboBox& combo, int value) { combo.setCurrentIndex(combo.findData(value)); }

QLabel* CaptionOf(const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text);
  label->setBuddy(buddy);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  buddy->setAccessibleName(WithoutMnemonic(text));
  return label;
}

}  // namespace

FaultPanel::FaultPanel(QWidget* parent)
    : QGroupBox(parent),
      power_(new CComboBox),
      error_(new CComboBox),
      target_(new CComboBox),
      kind_(new CComboBox),
      delay_(new QSpinBox),
      set_(new QPushButton(tr("&Set Fault"))),
      faults_(new QListWidget),
      remove_(new QPushButton(tr("&Remove"))),
      clear_(new QPushButton(tr("Re&move All"))) {
  Fill(*power_, kPowerStates);
  Fill(*error_, kErrorStates);
  FillTargets();
  for (const NamedKind& kind : kKinds) {
    kind_->addItem(tr(kind.name), static_cast<int>(kind.kind));
  }
  delay_->setRange(1, kMaximumDelay);
  delay_->setSingleStep(100);
  delay_->setValue(500);
  delay_->setSuffix(tr(" ms"));
  faults_->setItemDelegate(new IsolatedTexts(faults_));
  faults_->setAccessibleName(tr("Faults in force"));
  faults_->setMinimumHeight(faults_->fontMetrics().height() * 4);

  auto* grid = new QGridLayout(this);
  grid->addWidget(CaptionOf(tr("Po&wer"), power_), 0, 0);
  grid->addWidget(power_, 0, 1);
  grid->addWidget(CaptionOf(tr("Err&or status"), error_), 0, 2);
  grid->addWidget(error_, 0, 3);
  grid->addWidget(CaptionOf(tr("&Command"), target_), 1, 0);
  target_->lineEdit()->setAccessibleName(target_->accessibleName());
  grid->addWidget(target_, 1, 1, 1, 4);
  grid->addWidget(CaptionOf(tr("Fa&ult"), kind_), 2, 0);
  grid->addWidget(kind_, 2, 1);
  grid->addWidget(CaptionOf(tr("&Delay"), delay_), 2, 2);
  grid->addWidget(delay_, 2, 3);
  grid->addWidget(set_, 2, 4);
  grid->addWidget(CaptionOf(tr("&In force"), faults_), 3, 0, Qt::AlignTop);
  grid->addWidget(faults_, 3, 1, 3, 3);
  grid->addWidget(remove_, 3, 4);
  grid->addWidget(clear_, 4, 4);
  grid->setRowStretch(5, 1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);

  connect(power_, &QComboBox::activated, this, [this] {
    session_->Simulator().SetValue(SettingId::Power, power_->currentData().toInt());
    Q_EMIT Changed(session_);
  });
  connect(error_, &QComboBox::activated, this, [this] {
    session_->Simulator().SetValue(SettingId::ErrorStatus, error_->currentData().toInt());
    Q_EMIT Changed(session_);
  });
  connect(target_, &QComboBox::editTextChanged, this, &FaultPanel::UpdateButtons);
  connect(kind_, &QComboBox::currentIndexChanged, this, &FaultPanel::UpdateButtons);
  connect(set_, &QPushButton::clicked, this, &FaultPanel::SetFault);
  connect(faults_, &QListWidget::currentRowChanged, this, &FaultPanel::UpdateButtons);
  connect(remove_, &QPushButton::clicked, this, &FaultPanel::RemoveSelected);
  connect(new QShortcut(QKeySequence::Delete, faults_, nullptr, nullptr, Qt::WidgetShortcut),
          &QShortcut::activated, remove_, &QPushButton::click);
  connect(clear_, &QPushButton::clicked, this, [this] {
    session_->ClearFaults();
    Q_EMIT Changed(session_);
    ShowFaults();
  });
  delay_->setFocusPolicy(Qt::StrongFocus);
  delay_->installEventFilter(this);
  SetSession(nullptr);
}

// The wheel must not change a number without the focus.
bool FaultPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
    event->ignore();
    return true;
  }
  return QGroupBox::eventFilter(watched, event);
}

void FaultPanel::SetSession(ProjectorSession* session) {
  session_ = session;
  setEnabled(session != nullptr);
  if (session == nullptr) {
    setTitle(tr("No projector selected"));
  } else {
    const QString title = IsSimulated() ? tr("Simulation of %1") : tr("Simulated faults of %1");
    setTitle(title.arg(Text(session->Profile().name)));
  }
  RefreshStates();
  ShowFaults();
}

bool FaultPanel::IsSimulated() const {
  return session_ != nullptr && session_->Profile().link == ProjectorLink::Simulated;
}

// Only simulated projectors have states that can be set.
void FaultPanel::RefreshStates() {
  if (session_ == nullptr) return;
  if (!IsSimulated()) {
    for (QComboBox* state : {power_, error_}) {
      state->setEnabled(false);
      state->setCurrentIndex(-1);
    }
    return;
  }
  const SimulatedProjector& simulator = session_->Simulator();
  power_->setEnabled(simulator.Has(SettingId::Power));
  error_->setEnabled(simulator.Has(SettingId::ErrorStatus));
  SelectValue(*power_, simulator.Value(SettingId::Power));
  SelectValue(*error_, simulator.Value(SettingId::ErrorStatus));
}

void FaultPanel::FillTargets() {
  const auto add = [this](const QString& text, const FaultTarget& target) {
    target_->addItem(text, QVariant::fromValue(target));
  };
  add(tr("All commands"), {});
  for (const auto& [code, names] : NamedCodes()) {
    const QString number = QString::number(code, 16).toUpper();
    add(QStringLiteral("0x%1 %2").arg(number, names.join(QStringLiteral(" / "))).trimmed(), code);
  }
  for (std::size_t i = 0; i < kOperationCount; ++i) {
    const auto operation = static_cast<PjtOperation>(i);
    const QString name = Text(OperationName(operation));
    add(FormOf(operation).isGeneric ? tr("%1 (any code)").arg(name) : name, operation);
  }
  target_->setEditable(true);
  target_->setInsertPolicy(QComboBox::NoInsert);
  target_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  target_->setMinimumContentsLength(24);
  target_->completer()->setCompletionMode(QCompleter::PopupCompletion);
  target_->completer()->setFilterMode(Qt::MatchContains);
  target_->setToolTip(tr("Choose, or type a part of a name or code"));
}

void FaultPanel::SetFault() {
  const int index = target_->findText(target_->currentText(), Qt::MatchFixedString);
  if (session_ == nullptr || index < 0) return;
  const auto kind = static_cast<Fault::Kind>(kind_->currentData().toInt());
  const std::chrono::milliseconds delay{kind == Fault::Kind::Late ? delay_->value() : 0};
  session_->SetFault(target_->itemData(index).value<FaultTarget>(), {.kind = kind, .delay = delay});
  Q_EMIT Changed(session_);
  ShowFaults();
}

void FaultPanel::RemoveSelected() {
  const int row = faults_->currentRow();
  if (session_ == nullptr || row < 0) return;
  session_->SetFault(std::next(session_->Faults().begin(), row)->first, {});
  Q_EMIT Changed(session_);
  ShowFaults();
}

void FaultPanel::ShowFaults() {
  faults_->clear();
  if (session_ != nullptr) {
    for (const auto& [target, fault] : session_->Faults()) {
      QString text;
      for (int i = 0; i < target_->count() && text.isEmpty(); ++i) {
        if (target_->itemData(i).value<FaultTarget>() == target) text = target_->itemText(i);
      }
      const QString kind = tr(std::ranges::find(kKinds, fault.kind, &NamedKind::kind)->name);
      const bool isLate = fault.kind == Fault::Kind::Late;
      //: A command, what is wrong with it ("Delay"), and for how many milliseconds.
      faults_->addItem(isLate ? tr("%1: %2, %3 ms").arg(text, kind).arg(fault.delay.count())
                              : tr("%1: %2").arg(text, kind));
    }
    faults_->setCurrentRow(0);
  }
  UpdateButtons();
}

void FaultPanel::UpdateButtons() {
  const auto kind = static_cast<Fault::Kind>(kind_->currentData().toInt());
  delay_->setEnabled(kind == Fault::Kind::Late);
  set_->setEnabled(target_->findText(target_->currentText(), Qt::MatchFixedString) >= 0);
  remove_->setEnabled(faults_->currentRow() >= 0);
  clear_->setEnabled(faults_->count() > 0);
}

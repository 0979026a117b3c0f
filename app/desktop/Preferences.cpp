#include "app/desktop/Preferences.h"

#include <algorithm>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "toolkit/CComboBox.h"
#include "toolkit/Icons.h"

namespace {

constexpr const char* kLanguageKey = "language";
constexpr const char* kThemeKey = "theme";
constexpr const char* kIntervalKey = "fleet/intervalSeconds";
constexpr int kUsualInterval = 60;
constexpr int kShortestInterval = 10;
constexpr int kLongestInterval = 3600;

QSpinBox* MakeNumber(int least, int most, int value, const QString& suffix) {
  auto* number = new QSpinBox;
  number->setRange(least, most);
  number->setValue(value);
  number->setSuffix(suffix);
  return number;
}

}  // namespace

int Preferences::Interval(const QSettings* settings) {
  if (settings == nullptr) return kUsualInterval;
  return std::clamp(settings->value(kIntervalKey, kUsualInterval).toInt(), kShortestInterval,
                    kLongestInterval);
}

int Preferences::Language(const QSettings& settings) {
  return settings.value(kLanguageKey).toInt();
}

Theme Preferences::ThemeOf(const QSettings& settings) {
  const int theme = settings.value(kThemeKey).toInt();
  return theme == static_cast<int>(Theme::Light)  ? Theme::Light
         : theme == static_cast<int>(Theme::Dark) ? Theme::Dark
                                                  : Theme::Desktop;
}

Preferences::Preferences(QSettings& settings, QWidget* parent)
    : QDialog(parent), settings_(settings), language_(new CComboBox), theme_(new CComboBox) {
  setWindowTitle(tr("Preferences"));
  const AlertRules rules = AlertRules::Read(&settings);
  language_->Add(tr("As the system"), 0);
  for (const CatalogLanguage& language : CatalogLanguages(CatalogFolders()))
    language_->Add(QString::fromStdString(language.name), static_cast<int>(language.id));
  language_->SelectValue(Language(settings));
  theme_->Add(tr("As the desktop"), static_cast<int>(Theme::Desktop));
  theme_->Add(tr("Light"), static_cast<int>(Theme::Light));
  theme_->Add(tr("Dark"), static_cast<int>(Theme::Dark));
  theme_->SelectValue(static_cast<int>(ThemeOf(settings)));
  connect(theme_, &QComboBox::activated, this,
          [this] { Apply(static_cast<Theme>(theme_->SelectedValue().value_or(0))); });
  interval_ = MakeNumber(kShortestInterval, kLongestInterval, Interval(&settings), tr(" s"));
  //: Behind a number; with a blank before the sign if the language has one.
  lamp_ = MakeNumber(0, 200, rules.lampPercent, tr("%"));
  lamp_->setSpecialValueText(tr("never"));
  silent_ = MakeNumber(0, 1440, static_cast<int>(rules.silent.count()), tr(" min"));
  silent_->setSpecialValueText(tr("never"));
  const auto makeCheck = [](const QString& text, bool isOn) {
    auto* check = new QCheckBox(text);
    check->setChecked(isOn);
    return check;
  };
  problems_ = makeCheck(tr("&Fan, lamp, temperature, cover, filter"), rules.problems);
  drift_ = makeCheck(tr("Settings that are not as they should &be"), rules.drift);
  notifies_ = makeCheck(tr("Notify on the &desktop"), rules.notifies);
  quietFrom_ = new QTimeEdit(rules.quietFrom.isValid() ? rules.quietFrom : QTime(0, 0));
  quietTo_ = new QTimeEdit(rules.quietTo.isValid() ? rules.quietTo : QTime(0, 0));
  // From right to left, minutes would stand before hours.
  for (QTimeEdit* time : {quietFrom_, quietTo_}) {
    time->setLayoutDirection(Qt::LeftToRight);
    time->setDisplayFormat(QLocale().timeFormat(QLocale::ShortFormat));
  }
  quietFrom_->setAccessibleName(tr("Quiet from"));
  quietTo_->setAccessibleName(tr("Quiet until"));

  auto* general = new QFormLayout;
  general->addRow(tr("&Language (after a restart)"), language_);
  general->addRow(tr("&Colors"), theme_);
  general->addRow(tr("Ask each projector &every"), interval_);
  auto* alerts = new QGroupBox(tr("Alerts"));
  auto* form = new QFormLayout(alerts);
  form->addRow(tr("Lamp &hours, of the rated hours"), lamp_);
  form->addRow(tr("&Silent for"), silent_);
  form->addRow(problems_);
  form->addRow(drift_);
  form->addRow(notifies_);
  auto* quiet = new QHBoxLayout;
  quiet->addWidget(quietFrom_);
  quiet->addWidget(new QLabel(QStringLiteral("–")));
  quiet->addWidget(quietTo_);
  quiet->addStretch();
  auto* none = new QLabel(tr("(equal times: no quiet hours)"));
  quiet->addWidget(none);
  form->addRow(tr("Quiet hours"), quiet);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &Preferences::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &Preferences::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(general);
  layout->addWidget(alerts);
  layout->addWidget(buttons);
  RemoveForeignButtonIcons(*this);
}

void Preferences::reject() {
  if (theme_->SelectedValue() != static_cast<int>(ThemeOf(settings_))) Apply(ThemeOf(settings_));
  QDialog::reject();
}

void Preferences::accept() {
  settings_.setValue(kLanguageKey, language_->SelectedValue().value_or(0));
  settings_.setValue(kThemeKey, theme_->SelectedValue().value_or(0));
  settings_.setValue(kIntervalKey, interval_->value());
  AlertRules{.lampPercent = lamp_->value(),
             .silent = std::chrono::minutes(silent_->value()),
             .problems = problems_->isChecked(),
             .drift = drift_->isChecked(),
             .notifies = notifies_->isChecked(),
             .quietFrom = quietFrom_->time(),
             .quietTo = quietTo_->time()}
      .Write(settings_);
  QDialog::accept();
}

#include "pages/common/RowDialog.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>

#include "pages/common/WaitWatch.h"
#include "resources/ArrowBitmap.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"

namespace {

/// The controls of a row that a user operates, sliders apart.
std::vector<int> OperatedControls(const PageRow& row) {
  if (const auto* value = std::get_if<ValueRow>(&row)) {
    return {value->ids.minus, value->ids.plus, value->reset.button};
  }
  const bool isPages = std::holds_alternative<StateRow>(row) ||  // whose buttons its page maps
                       std::holds_alternative<PopUpRow>(row);
  return isPages ? std::vector<int>{} : std::vector{ControlOf(row)};
}

// A state's text is put into a catalog text of its own; both may be long.
constexpr int kFramedTextSize = 2048;

QString Wide(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString TextOf(const ListEntry& entry) {
  if (entry.text) return CatalogString(kListCategory, *entry.text);
  return Wide(entry.name);
}

}  // namespace

// One that is the same in every language is no text of the catalog.
QString RowDialog::CaptionText(const PageRow& row) {
  const int number = CaptionOf(row);
  if (number != 0) return CatalogString(kCaptionCategory, number);
  return Wide(KeyOf(row)).section(QLatin1Char('.'), -1).toUpper();
}

RowDialog::RowDialog(int templateNumber, const PageTable& table, CWnd* owner)
    : SettingsDialog(templateNumber, owner), table_(table), bound_(table.rows.size()) {}

const NotificationMap& RowDialog::Notifications() const {
  if (notifications_) return *notifications_;
  std::vector<Notification> entries = OwnNotifications();
  const auto add = [&entries](Notification::Event event, int id, auto handle) {
    const bool own = std::ranges::find(entries, id, &Notification::id) != entries.end();
    if (id != 0 && own) return;
    entries.push_back({event, id, std::move(handle)});
  };
  const auto act = [](int id) {
    return [id](CDialog& dialog, CSliderCtrl*) { static_cast<RowDialog&>(dialog).Act(id); };
  };
  using Event = Notification::Event;
  bool slides = false;
  for (const PageRow& row : table_.rows) {
    const Event event = std::holds_alternative<ListRow>(row) ? Event::SelChange : Event::Clicked;
    for (const int id : OperatedControls(row)) {
      if (id != 0) add(event, id, act(id));
    }
    if (const int list = ListBeside(row); list != 0) {
      add(Event::Passive, list, [](CDialog&, CSliderCtrl*) {});
    }
    const auto* value = std::get_if<ValueRow>(&row);
    slides = slides || (value != nullptr && value->ids.slider != 0);
  }
  if (slides && std::ranges::find(entries, Event::HScroll, &Notification::event) == entries.end()) {
    entries.push_back(HScroll(&RowDialog::OnHScroll));
  }
  return notifications_.emplace(std::move(entries));
}

std::vector<PjtCommand> RowDialog::Reads() const {
  std::vector<PjtCommand> commands;
  OfSource asked = OfSource::None;
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (!bound_[i].present) continue;
    const PageRow& row = table_.rows[i];
    if (const OfSource of = SourceOf(row); of != OfSource::None) {
      if (std::exchange(asked, of) == of) continue;
      for (const Call& call : SourceQuestions(of)) commands.push_back(call.Command());
    } else if (const auto call = ReadingOf(row, Model())) {
      commands.push_back(call->Command());
    }
  }
  return commands;
}

void RowDialog::DoDataExchange() {
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (const auto* value = std::get_if<ValueRow>(&table_.rows[i])) {
      bound_[i].value.Bind(*this, value->ids);
    }
  }
}

bool RowDialog::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  PrepareRows();
  ExplainEmptyPage();
  if (isWindow()) AddStatusLine();
  return true;
}

void RowDialog::PrepareRows() {
  const int code = Model().ModelCode;
  const bool keepsTemplate = KeepsTemplate(table_, code);
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    bound_[i].present = !keepsTemplate && ::Has(table_, i, code);
    bound_[i].opened.reset();
  }
  if (keepsTemplate) {
    UseTemplateLists();
    return;
  }
  DrawArrows();
  ShowPresentRows();
  // Absent rows too: their handlers have names, and work for a host that calls them.
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    std::visit([&](const auto& row) { Prepare(row, bound_[i]); }, table_.rows[i]);
  }
}

// Arrow buttons bear a picture, and keep their sign as their name.
void RowDialog::DrawArrows() {
  static constexpr std::pair<std::string_view, int> kBitmaps[] = {{"↑", BitmapId::ArrowUp},
                                                                  {"↓", BitmapId::ArrowDown},
                                                                  {"←", BitmapId::ArrowLeft},
                                                                  {"→", BitmapId::ArrowRight}};
  for (const RowTemplate& row : Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind != ControlKind::Arrow) continue;
      auto& button = Item<QAbstractButton>(control.id);
      button.setAccessibleName(button.text());
      button.setText({});
      const int side = button.fontMetrics().height();  // as high as the buttons that bear a text
      button.setIconSize({side, side});
      for (const auto& [sign, bitmap] : kBitmaps) {
        if (sign == control.caption) button.setIcon(ArrowBitmap(bitmap));
      }
    }
  }
}

void RowDialog::ShowPresentRows() {
  // Several rows of the table may stand in one row of the template: it is there if any of them is.
  for (const bool present : {false, true}) {
    for (std::size_t i = 0; i < bound_.size(); ++i) {
      if (bound_[i].present == present) ShowRow(ControlOf(table_.rows[i]), present);
    }
  }
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    QWidget* control = GetDlgItem(ControlOf(table_.rows[i]));
    if (bound_[i].present || control->isHidden()) continue;
    QSizePolicy keepsItsPlace = control->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    control->setSizePolicy(keepsItsPlace);
    control->hide();
  }
}

// A model without the settings that a page is for would see a page that looks broken.
void RowDialog::ExplainEmptyPage() {
  if (KeepsTemplate(table_, Model().ModelCode)) return;
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    const bool isReset = std::holds_alternative<ResetRow>(table_.rows[i]);  // resets other rows
    if (bound_[i].present && !isReset) return;
  }
  ShowNotice(CatalogString(kListCategory, ListText::NoSettings));
}

// The entries keep their texts and stand for what the rows' own entries at their places do.
void RowDialog::UseTemplateLists() {
  for (const PageRow& row : table_.rows) {
    const auto* list = std::get_if<ListRow>(&row);
    if (list == nullptr) continue;
    CComboBox& combo = List(list->control);
    const std::vector<ListEntry> entries = list->entries.Of({});
    const int count = std::min(combo.count(), static_cast<int>(entries.size()));
    for (int i = 0; i < count; ++i) {
      combo.setItemData(i, entries[static_cast<std::size_t>(i)].value);
    }
  }
}

CComboBox& RowDialog::List(int control) const { return Item<CComboBox>(control); }

void RowDialog::FillList(int control, const Entries& entries) {
  CComboBox& list = List(control);
  list.clear();
  for (const ListEntry& entry : entries.Of(Model())) list.Add(TextOf(entry), entry.value);
}

void RowDialog::RefillLists(const ModelData& before) {
  if (KeepsTemplate(table_, Model().ModelCode)) return;
  for (const PageRow& row : table_.rows) {
    const auto* list = std::get_if<ListRow>(&row);
    if (list != nullptr && list->entries.Of(before) != list->entries.Of(Model())) {
      FillList(list->control, list->entries);
    }
  }
}

void RowDialog::Prepare(const ListRow& row, Bound&) { FillList(row.control, row.entries); }

void RowDialog::Prepare(const ActionRow& row, Bound&) {
  if (row.list != 0) FillList(row.list, row.entries);
}

void RowDialog::Prepare(const ResetRow& row, Bound&) { FillResets(row.list); }

void RowDialog::FillResets(int list) {
  CComboBox& combo = List(list);
  combo.clear();
  for (const PageRow& row : table_.rows) {
    const auto* reset = std::get_if<ResetRow>(&row);
    if (reset == nullptr || reset->list != list) continue;
    for (const ResetEntry& entry : reset->entries) {
      // The entry's place in the table rides along: what is listed does not tell it.
      if (entry.of == 0 || Has(entry.of)) {
        combo.Add(CatalogString(kListCategory, entry.text),
                  static_cast<int>(&entry - reset->entries.data()));
      }
    }
  }
}

void RowDialog::Preselect(int list) {
  if (CComboBox& combo = List(list); combo.currentIndex() < 0) combo.Select(0);
}

std::optional<int> RowDialog::AskFor(OfSource of) {
  const auto source = AskSource(*projector, of, Model().ModelCode);
  for (std::size_t i = 0; source && of != OfSource::None && i < bound_.size(); ++i) {
    if (SourceOf(table_.rows[i]) != of || bound_[i].source == source) continue;
    bound_[i].source = source;
    bound_[i].opened.reset();
  }
  return source;
}

void RowDialog::Refresh(const ListRow& row, Bound&, Source source) {
  if (!row.read) return;
  CComboBox& list = List(row.control);
  const bool asks = source && (!row.rules.emptyIsNotRead || list.count() > 0);
  const auto value = asks ? Read(*projector, *row.Reading(*source)) : std::nullopt;
  if (projector->IsAbandoned()) return;
  if (!value) {
    if (row.rules.failedReadDisables) list.setEnabled(false);
    return;
  }
  if (row.rules.noEntry == NoEntry::Ignored && list.findData(*value) < 0) return;
  list.setEnabled(true);
  Select(row, *value);
  if (list.currentIndex() >= 0) return;
  if (row.rules.placeholder.Of(Model().ModelCode)) list.Select(list.count() - 1);
}

void RowDialog::Select(const ListRow& row, int value) {
  CComboBox& list = List(row.control);
  if (list.SelectValue(value)) return;
  if (row.rules.noEntry == NoEntry::Clears) list.Select(-1);
  if (row.rules.noEntry == NoEntry::IsPosition) list.Select(value);
  if (row.rules.noEntry == NoEntry::IsOrdinal) list.Select(value - 1);
}

void RowDialog::Refresh(const CheckRow& row, Bound&, Source) {
  auto& check = Item<QCheckBox>(row.control);
  const auto value = Read(*projector, row.read);
  if (projector->IsAbandoned()) return;
  check.setEnabled(value.has_value());
  if (value) check.setChecked(*value != 0);
}

void RowDialog::Refresh(const StateRow& row, Bound&, Source) {
  const auto value = Read(*projector, row.read);
  if (!projector->IsAbandoned()) ShowState(row, value);
}

void RowDialog::ShowState(const StateRow& row, std::optional<int> value) {
  QString text = QStringLiteral("-");
  if (value) {
    const std::vector<ListEntry> texts = row.texts.Of(Model());
    const int position = PositionOf(texts, *value);
    text = position >= 0        ? TextOf(texts[static_cast<std::size_t>(position)])
           : row.otherwise != 0 ? CatalogString(kListCategory, row.otherwise, *value)
                                : QString();
    if (row.frame != 0) {
      text = QString::fromStdString(
          CatalogText<kFramedTextSize>(kListCategory, row.frame, text.toStdString()));
    }
  }
  Item<QLabel>(row.control).setText(text);
}

bool RowDialog::Has(int control) const {
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (bound_[i].present && Owns(table_.rows[i], control)) return true;
  }
  return false;
}

ValueControls& RowDialog::Value(int control) {
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (ControlOf(table_.rows[i]) == control) return bound_[i].value;
  }
  qFatal("no value row has the control %d", control);
}

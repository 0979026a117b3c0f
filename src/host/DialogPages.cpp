#include "host/DialogPages.h"

#include <QVBoxLayout>

#include "pages/MakePage.h"
#include "pages/common/CTabPage.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CTabCtrl.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/TemplateRows.h"

namespace AdvancedControl {

namespace {

constexpr int kTabWidth = 120;

QString DifferencesText(int read, int seen) {
  const auto text = [](int number, int count) {
    return count > 0 ? CatalogString(kListCategory, number, std::int64_t{count}) : QString();
  };
  QStringList texts{text(ListText::NotAsWanted, read), text(ListText::SeenNotAsWanted, seen)};
  texts.removeAll(QString());
  return texts.join(QLatin1Char('\n'));
}

}  // namespace

DialogPages::DialogPages(QWidget& dialog) : area_(new FittedScroll(new QWidget, &dialog)) {
  auto* layout = new QVBoxLayout(area_->widget());
  layout->setContentsMargins({});
}

DialogPages::~DialogPages() = default;

CTabPage& DialogPages::Page(PageId page) const {
  auto& made = pages_[static_cast<std::size_t>(page)];
  if (made == nullptr) made = MakePage(page, area_->widget());
  return *made;
}

std::vector<CTabPage*> DialogPages::Created() const {
  std::vector<CTabPage*> created;
  for (const auto& page : pages_) {
    if (page != nullptr && page->Template() != nullptr) created.push_back(page.get());
  }
  return created;
}

void DialogPages::Create(const ModelData& model, CPjtInterface& projector, CTabCtrl& tabs) {
  model_ = &model;
  tabs_ = &tabs;
  CreatePage(PageId::Status, projector);
  for (const PageId page : PagesOf(model.DialogType)) CreatePage(page, projector);
  InsertTabs();
}

void DialogPages::CreatePage(PageId id, CPjtInterface& projector) {
  CTabPage& page = Page(id);
  page.projector = &projector;
  page.Create();
  page.hide();
  area_->widget()->layout()->addWidget(&page);
}

void DialogPages::InsertTabs() {
  tabs_->SetItemWidth(kTabWidth);
  const auto insert = [this](int caption, PageId page) {
    const QString text = CatalogString(kCaptionCategory, caption);
    tabs_->addTab(text);
    Page(page).setAccessibleName(text);
  };
  const CatalogBatch batch;
  const QSignalBlocker quiet(tabs_);  // adding the first tab selects it before the dialog is ready
  insert(Caption::TabStatus, PageId::Status);
  for (const PageTab& tab : TabsOf(model_->DialogType, model_->ModelCode))
    insert(tab.caption, tab.page);
}

QSize DialogPages::FitPages() const {
  const std::vector<CTabPage*> created = Created();
  std::vector<const TemplateRows*> rows;
  rows.reserve(created.size());
  for (const CTabPage* page : created) rows.push_back(&page->Rows());
  TemplateRows::ShareCaptionWidths(rows);
  QSize whole;
  for (CTabPage* page : created) {
    page->setMinimumSize(page->DialogSize());
    whole = whole.expandedTo(page->minimumSize());
  }
  return whole;
}

void DialogPages::OrderFocus(std::initializer_list<QWidget*> last) const {
  QWidget* before = tabs_;
  const auto add = [&before](QWidget* next) {
    if (next == nullptr || next->focusPolicy() == Qt::NoFocus) return;
    QWidget::setTabOrder(before, next);
    before = next;
  };
  for (const CTabPage* page : Created()) {
    for (const RowTemplate& row : page->Template()->rows) {
      for (const ControlTemplate& control : row.controls) add(page->GetDlgItem(control.id));
    }
  }
  for (QWidget* widget : last) add(widget);
}

std::optional<PageId> DialogPages::PageIdOfTab(int tab) const {
  const auto tabs = TabsOf(model_->DialogType, model_->ModelCode);
  if (tab == 0) return PageId::Status;
  if (tab < 0 || static_cast<std::size_t>(tab) > tabs.size()) return {};
  return tabs[static_cast<std::size_t>(tab) - 1].page;
}

void DialogPages::ShowSelected() {
  const auto selected = tabs_ != nullptr ? PageIdOfTab(tabs_->currentIndex()) : std::nullopt;
  shown_ = selected ? &Page(*selected) : nullptr;
  // The data of a closed dialog's next creation may have other pages than its tabs.
  if (shown_ != nullptr && shown_->Template() == nullptr) shown_ = nullptr;
  // Hiding the page that stays would take the focus from its control.
  for (CTabPage* page : Created()) {
    if (page != shown_) page->hide();
  }
  if (shown_ == nullptr) return;
  shown_->Reader().MarkUnread();
  shown_->show();
  area_->widget()->layout()->activate();
}

void DialogPages::ShowDifferences() const {
  for (int tab = 0; tabs_ != nullptr && tab < tabs_->count(); ++tab) {
    const auto id = PageIdOfTab(tab);
    if (!id) continue;
    CTabPage& page = Page(*id);
    const int read = page.Reader().Differences();
    const int seen = page.Reader().DifferencesWhenSeen();
    const QString form = seen > 0   ? QStringLiteral("%1 (%2?)")
                         : read > 0 ? QStringLiteral("%1 (%2)")
                                    : QStringLiteral("%1");
    QString text = form.arg(page.accessibleName());
    if (read + seen > 0) text = text.arg(read + seen);
    if (tabs_->tabText(tab) == text) continue;
    tabs_->setTabText(tab, text);
    tabs_->setTabToolTip(tab, DifferencesText(read, seen));
  }
}

void DialogPages::SelectNeighbour(int step) {
  const int count = tabs_ != nullptr ? tabs_->count() : 0;
  if (count == 0) return;
  tabs_->setFocus(Qt::ShortcutFocusReason);
  tabs_->setCurrentIndex((tabs_->currentIndex() + step + count) % count);
}

}  // namespace AdvancedControl

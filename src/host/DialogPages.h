#pragma once

#include <array>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

#include <QPointer>
#include <QSize>
#include <QString>

#include "Namespace.h"
#include "settings/PageSets.h"
#include "toolkit/CTabCtrl.h"

class CPjtInterface;
class CTabPage;
class QWidget;

namespace AdvancedControl {

class FittedScroll;
struct ModelData;

/// The pages of a dialog, their tabs, and the area that shows the page of the selected tab.
/// User-interface thread only.
class DialogPages {
 public:
  /// The pages have no controls until `Create`. `dialog` owns the area that shows them.
  explicit DialogPages(QWidget& dialog);
  ~DialogPages();

  /// Any page, made when it is first asked for; only those of the model's page set have controls
  /// once they are created.
  CTabPage& Page(PageId page) const;
  /// The pages that have controls, in the order of `PageId`.
  std::vector<CTabPage*> Created() const;
  FittedScroll& Area() const { return *area_; }

  /// Creates the pages of the model's page set and inserts its tabs. `model` must outlive the
  /// pages.
  void Create(const ModelData& model, CPjtInterface& projector, CTabCtrl& tabs);
  /// Aligns the pages with each other, and returns the size that shows every page completely.
  QSize FitPages() const;
  /// Lets Tab go through the controls of the pages in their templates' order, from the row of tabs
  /// to `last`.
  void OrderFocus(std::initializer_list<QWidget*> last) const;

  /// Null until `Create`.
  CTabCtrl* Tabs() const { return tabs_; }
  /// The page of a tab of the present model, only after `Create`. Nothing for a tab that it lacks.
  std::optional<PageId> PageIdOfTab(int tab) const;

  /// The page shown, or null.
  CTabPage* Shown() const { return shown_; }
  /// Shows the page of the selected tab, marked as unread, and hides all others.
  void ShowSelected();
  /// Lets each tab say how many rows of its page differ from the wanted values. A question mark
  /// says that some of them were not read, and differed when the host last saw them.
  void ShowDifferences() const;
  /// Selects the tab `step` places further on, and gives it the focus.
  void SelectNeighbour(int step);

 private:
  void CreatePage(PageId id, CPjtInterface& projector);
  void InsertTabs();

  FittedScroll* area_;
  mutable std::array<std::unique_ptr<CTabPage>, kPageCount> pages_;  // null until asked for
  const ModelData* model_ = nullptr;
  QPointer<CTabCtrl> tabs_;
  CTabPage* shown_ = nullptr;
};

}  // namespace AdvancedControl

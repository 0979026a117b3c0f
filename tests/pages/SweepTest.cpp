// Rules that hold for every page of every model.

#include <QComboBox>
#include <QLabel>
#include <QTest>

#include "fleet/ProfileFile.h"
#include "tests/pages/EachPage.h"

namespace {

void ExpectControlsWellKnown(const CDialog& dialog) {
  std::map<int, int> handlers;
  for (const Notification& entry : dialog.Notifications().Entries()) ++handlers[entry.id];
  std::set<int> numbers;
  for (const RowTemplate& row : dialog.Template()->rows) {
    SCOPED_TRACE(row.controls[0].caption);
    for (const ControlTemplate& control : row.Present()) {
      EXPECT_TRUE(numbers.insert(control.id).second) << control.id;
      const bool slider = control.kind == ControlKind::Slider;
      if (slider || UserOperates(control.kind)) {
        EXPECT_EQ(handlers[slider ? 0 : control.id], 1) << NameOf(*dialog.GetDlgItem(control.id));
      } else if (control.kind != ControlKind::Field) {
        continue;
      }
      EXPECT_FALSE(dialog.GetDlgItem(control.id)->accessibleName().isEmpty()) << control.id;
    }
  }
}

TEST(Sweep, EveryControlHasAUniqueNumberANameAndExactlyOneHandler) {
  ForEachPage([](OpenDialog&, CTabPage& page) { ExpectControlsWellKnown(page); });
  ForEachPopup(ExpectControlsWellKnown);
}

// Whether a row of the template can be used. The button beside an empty list does nothing.
bool IsOperable(const CDialog& page, const RowTemplate& row) {
  bool operable = false;
  for (const ControlTemplate& control : row.controls) {
    const QWidget* widget = page.GetDlgItem(control.id);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) continue;
    const auto* list = qobject_cast<const QComboBox*>(widget);
    if (list != nullptr && list->count() == 0) return false;
    operable |= UserOperates(control.kind) || control.kind == ControlKind::Slider;
  }
  return operable;
}

TEST(Sweep, NoTabOfAnyShippedProfileIsBlank) {
  std::vector<CModelInfo2> models;
  const ProfileList list = ReadProfileList(TEST_CATALOG_DIR "/projectors.json");
  for (const FleetProfile& profile : list.profiles) models.push_back(ModelInfoOf(profile));
  ASSERT_FALSE(models.empty()) << list.error.toStdString();
  const auto expectFilled = [](OpenDialog&, CTabPage& page) {
    EXPECT_FALSE(page.Template()->rows.empty()) << "a page that no model has a row of";
    const auto* notice = qobject_cast<QLabel*>(page.GetDlgItem(CDialog::kNoticeId));
    const bool operable = std::ranges::any_of(
        page.Template()->rows, [&page](const RowTemplate& row) { return IsOperable(page, row); });
    EXPECT_NE(operable, notice != nullptr && notice->isVisible() && !notice->text().isEmpty());
  };
  ForEachPage(expectFilled, models);
}

TEST(Sweep, TabVisitsEveryControlRowByRow) {
  ForEachPage([](OpenDialog& open, CTabPage& page) {
    std::set<const QWidget*> reached;
    const auto next = [] {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      return QApplication::focusWidget();
    };
    open.Dialog().findChild<QTabBar*>()->setFocus();
    QPoint last;
    for (QWidget* control = next(); control != open.Dialog().GetDlgItem(1); control = next()) {
      ASSERT_TRUE(reached.insert(control).second) << "round in circles";
      const QPoint at(control->x(), control->geometry().center().y());
      EXPECT_TRUE(at.y() > last.y() + 8 || at.x() > last.x())
          << NameOf(*control) << " before what is left of it or above";
      last = at;
    }
    for (const QWidget* control : UsableControls(page)) {
      if ((control->focusPolicy() & Qt::TabFocus) == 0) continue;
      EXPECT_TRUE(reached.contains(control)) << NameOf(*control);
    }
  });
}

// The present rows of a column must have the same pitch, each with its controls on one line.
TEST(Sweep, PresentRowsArePacked) {
  ForEachPage([](OpenDialog&, CTabPage& page) {
    std::map<RowPlace, int> above;
    std::vector<int> pitches;
    for (const RowTemplate& row : page.Template()->rows) {
      int line = 0;
      for (const ControlTemplate& control : row.controls) {
        const QWidget* widget = page.GetDlgItem(control.id);
        if (widget == nullptr || !widget->isVisible()) continue;
        if (line == 0) line = widget->geometry().center().y();
        EXPECT_NEAR(widget->geometry().center().y(), line, 1) << NameOf(*widget);
      }
      if (line == 0 || row.place == RowPlace::Bottom) continue;
      if (above.contains(row.place)) pitches.push_back(line - above[row.place]);
      above[row.place] = line;
    }
    for (const int pitch : pitches) EXPECT_NEAR(pitch, pitches.front(), 1);
  });
}

// Sliders and lists must not jump when the tab changes.
TEST(Sweep, ControlsStartAndEndAtTheSamePlaceOnAllTabs) {
  for (const CModelInfo2& model : {FullModel(1, 1), FullModel(4, 9), FullModel(5, 30)}) {
    std::map<std::pair<bool, ControlKind>, std::set<std::pair<int, int>>> places;
    const auto look = [&places](OpenDialog&, CTabPage& page) {
      for (const RowTemplate& row : page.Template()->rows) {
        for (const auto& [kind, id, caption, entries] : row.controls) {
          const QWidget* widget = page.GetDlgItem(id);
          if (kind != ControlKind::Slider && kind != ControlKind::Colon) continue;
          if (!widget->isVisible()) continue;
          places[{row.place == RowPlace::Right, kind}].emplace(widget->x(), widget->width());
        }
      }
    };
    ForEachPage(look, {model});
    EXPECT_FALSE(places.empty());
    for (const auto& [kind, different] : places) EXPECT_EQ(different.size(), 1U) << NameOf(model);
  }
}

}  // namespace

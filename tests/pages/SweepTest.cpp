// Rules that hold for every page of every model.

#include <map>
#include <set>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "fleet/ProfileFile.h"
#include "i18n/Catalog.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Soon.h"
#include "toolkit/WindowText.h"

namespace {

using PageCheck = std::function<void(OpenDialog&, CTabPage&)>;

void ForEachPage(const PageCheck& check, const std::vector<CModelInfo2>& models = EveryModel()) {
  for (const CModelInfo2& model : models) {
    OpenDialog open(model);
    const int tabs = open.Dialog().findChild<QTabBar*>()->count();
    for (int tab = 0; tab < tabs; ++tab) {
      open.SelectTab(tab);
      SCOPED_TRACE(NameOf(model) + " tab " + std::to_string(tab));
      ASSERT_NE(open.Page().Template(), nullptr);
      check(open, open.Page());
    }
  }
}

void ForEachPopup(const std::function<void(CDialog&)>& check) {
  OpenDialog host(MakeModel(5, 44));
  for (const PopUp kind : {PopUp::Gamma, PopUp::ColorTemp, PopUp::Service}) {
    const auto popUp = MakePopUp(kind, host.Dialog());
    popUp->setParent(nullptr, popUp->windowFlags());  // as created by its page
    SCOPED_TRACE(popUp->metaObject()->className());
    QTimer::singleShot(0, popUp.get(), [&] {
      check(*popUp);
      popUp->reject();
    });
    popUp->DoModal();
  }
}

bool UserOperates(ControlKind kind) {
  using enum ControlKind;
  constexpr ControlKind kOperated[] = {Minus, Plus, Combo, Button, Arrow, Check};
  return std::ranges::find(kOperated, kind) != std::end(kOperated);
}

void ExpectControlsWellKnown(const CDialog& dialog) {
  std::map<int, int> handlers;
  for (const Notification& entry : dialog.Notifications().Entries()) ++handlers[entry.id];
  std::set<int> numbers;
  for (const RowTemplate& row : dialog.Template()->rows) {
    SCOPED_TRACE(row.controls[0].caption);
    for (const ControlTemplate& control : row.controls) {
      if (control.kind == ControlKind::None) break;
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

// Reads for an input source follow the question for the source; all others are announced.
TEST(Sweep, APageAnnouncesItsReads) {
  ForEachPage([](OpenDialog& open, CTabPage& page) {
    open.Projector().Take();
    for (const PjtCommand& command : page.Reader().Reads()) open.Projector().Execute(command);
    const std::vector<std::string> announced = open.Projector().Take();
    page.InitDisp();
    std::vector<std::string> sent = open.Projector().Take();
    std::erase_if(sent, [](const std::string& read) {
      return read.starts_with("GetInputSrc") || read.starts_with("GetSRSWOW");
    });
    EXPECT_EQ(announced, sent);
  });
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

QSize TextSize(const QWidget& widget, const QString& text) {
  return {widget.fontMetrics().horizontalAdvance(text) + 8, widget.fontMetrics().height()};
}

// Every visible control must be inside its page, have enough space for its text, and overlap no
// other.
void ExpectNothingClipped(const CDialog& page) {
  std::vector<const QWidget*> visible;
  for (const RowTemplate& row : page.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      const QWidget* widget = page.GetDlgItem(control.id);
      if (widget == nullptr || !widget->isVisible()) continue;
      EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << NameOf(*widget);
      const bool small = control.kind == ControlKind::Minus || control.kind == ControlKind::Plus ||
                         control.kind == ControlKind::Arrow;
      const QSize needed = control.kind == ControlKind::Slider ? widget->minimumSizeHint()
                           : control.kind == ControlKind::Field
                               ? TextSize(*widget, QStringLiteral("-128"))
                           : small ? TextSize(*widget, WindowText(*widget))
                                   : widget->sizeHint();
      EXPECT_GE(widget->width(), needed.width()) << NameOf(*widget);
      EXPECT_GE(widget->height(), needed.height()) << NameOf(*widget);
      for (const QWidget* other : visible) {
        if (other->parentWidget() != widget->parentWidget()) continue;
        EXPECT_FALSE(other->geometry().intersects(widget->geometry()))
            << NameOf(*widget) << " covers " << NameOf(*other);
      }
      if (std::string_view(control.caption) == "→") {
        EXPECT_LT(visible.back()->x(), widget->x()) << "the arrows have changed places";
      }
      visible.push_back(widget);
    }
  }
}

// Window, tabs and Close must be on the screen, and so must each control that gets the focus.
void ExpectInReach(CDialog& dialog) {
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QApplication::processEvents();  // updates the scroll bars
  const QSize screen = dialog.screen()->availableGeometry().size();
  EXPECT_EQ(dialog.size().boundedTo(screen), dialog.size());
  const auto* scroll = dialog.findChild<QScrollArea*>();
  if (scroll != nullptr && scroll->widget()->height() > scroll->height()) {
    EXPECT_GE(dialog.height(), screen.height() - 50) << "there is more room";
  }
  const auto inSight = [&dialog](const QWidget& widget) {
    const QRect shown = widget.visibleRegion().boundingRect();
    return shown.height() == widget.height() && shown.width() >= std::min(widget.width(), 40) &&
           dialog.rect().contains(QRect(widget.mapTo(&dialog, shown.topLeft()), shown.size()));
  };
  for (QWidget* widget : dialog.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &dialog) continue;
    if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isEnabled()) continue;
    widget->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(inSight(*widget)) << NameOf(*widget);
    for (const RowTemplate& row : dialog.Template()->rows) {
      const ControlTemplate& close = row.controls.front();
      if (close.kind != ControlKind::Close) continue;
      EXPECT_TRUE(inSight(*dialog.GetDlgItem(close.id))) << "Close";
    }
  }
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

/// What a model's dialog looks like, independent of language and font.
QString LooksOf(const CModelInfo2& model) {
  OpenDialog open(model);
  const QTabBar& tabs = *open.Dialog().findChild<QTabBar*>();
  QString looks;
  for (int tab = 0; tab < tabs.count(); ++tab) {
    open.SelectTab(tab);
    looks += '\n' + tabs.tabText(tab);
    for (const RowTemplate& row : open.Page().Template()->rows) {
      for (const ControlTemplate& control : row.controls) {
        const QWidget* widget = open.Page().GetDlgItem(control.id);
        if (widget == nullptr || !widget->isVisible()) continue;
        looks += QStringLiteral("\n%1 %2 ").arg(control.id).arg(widget->isEnabled());
        looks += WindowText(*widget);
        const auto* list = qobject_cast<const QComboBox*>(widget);
        for (int i = 0; list != nullptr && i < list->count(); ++i) looks += '|' + list->itemText(i);
      }
    }
  }
  return looks;
}

/// One model for each look; on unusual screens only one for each type, to save time.
const std::vector<CModelInfo2>& ModelsByLook() {
  static const std::vector<CModelInfo2> models = [] {
    if (qEnvironmentVariableIsSet("TEST_SCREEN")) {
      return std::vector{FullModel(1, 1), FullModel(2, 6),  FullModel(3, 10),
                         FullModel(4, 9), FullModel(5, 30), FullModel(5, 42)};
    }
    std::vector<CModelInfo2> different;
    std::set<QString> looks;
    for (const CModelInfo2& model : EveryModel()) {
      if (looks.insert(LooksOf(model)).second) different.push_back(model);
    }
    return different;
  }();
  return models;
}

class ScreenSizeTest : public testing::TestWithParam<const char*> {
 protected:
  ~ScreenSizeTest() override {
    QApplication::setFont(font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    qputenv("LC_ALL", "en_US.UTF-8");
    EXPECT_EQ(LoadCatalog(), 0);
  }

  const std::vector<CModelInfo2>& models = ModelsByLook();
  const QFont font = QApplication::font();
};

TEST_P(ScreenSizeTest, NothingIsClippedOrOutOfReachAtAnyFontSize) {
  qputenv("LC_ALL", GetParam());
  ASSERT_EQ(LoadCatalog(), 0);
  // The smallest font in both directions.
  for (const double scale : {-1.0, 1.0, 1.5, 2.0}) {
    QFont scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * std::abs(scale));
    QApplication::setFont(scaled);
    QApplication::setLayoutDirection(scale < 0 ? Qt::RightToLeft : Qt::LeftToRight);
    SCOPED_TRACE(scale);
    const auto expectRoom = [](CDialog& page, CDialog& dialog) {
      ExpectNothingClipped(page);
      ExpectInReach(dialog);
    };
    ForEachPage([&](OpenDialog& open, CTabPage& page) { expectRoom(page, open.Dialog()); }, models);
    ForEachPopup([&](CDialog& popUp) { expectRoom(popUp, popUp); });
  }
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, ScreenSizeTest,
                         testing::Values("en_US.UTF-8", "zh_CN.UTF-8"));

}  // namespace

// Every text has room on every page, in every language, at every font size and on small screens.

#include <QScrollArea>
#include <QTest>

#include "host/ProjectorStrip.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "tests/pages/EachPage.h"
#include "tests/support/Ink.h"
#include "toolkit/WindowText.h"

namespace {

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
      if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const QRect ink = InkOf(*label);
        EXPECT_TRUE(label->rect().contains(ink) || ink.isEmpty())
            << label->text().toStdString() << ' ' << ink.x() << ' ' << ink.y() << ' '
            << ink.right() - label->rect().right() << ' ' << ink.bottom() - label->rect().bottom();
      }
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

/// Models that together have nearly all rows.
std::vector<CModelInfo2> FewModels() {
  return {FullModel(1, 1), FullModel(2, 6),  FullModel(3, 10),
          FullModel(4, 9), FullModel(5, 30), FullModel(5, 42)};
}

/// On unusual screens only some, to save time.
std::vector<CModelInfo2> Models() {
  return qEnvironmentVariableIsSet("TEST_SCREEN") ? FewModels() : EveryModel();
}

struct LanguageTest : testing::Test {
  ~LanguageTest() override {
    QApplication::setFont(font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    Use("en_US.UTF-8");
  }

  static void Use(const std::string& locale) {
    qputenv("LC_ALL", locale.c_str());
    EXPECT_EQ(LoadCatalog(), 0);
  }

  const QFont font = QApplication::font();
};

struct ScreenSizeTest : LanguageTest, testing::WithParamInterface<std::string> {};

TEST_P(ScreenSizeTest, NothingIsClippedOrOutOfReachAtAnyFontSize) {
  Use(GetParam());
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
    ForEachPage(
        [&](OpenDialog& open, CTabPage& page) {
          expectRoom(page, open.Dialog());
          const auto& strip = *open.Dialog().findChild<ProjectorStrip*>();
          EXPECT_TRUE(strip.isVisible() && strip.height() >= strip.fontMetrics().height());
        },
        Models());
    ForEachPopup([&](CDialog& popUp) { expectRoom(popUp, popUp); });
  }
}

/// The languages of the catalog's modules, or with TEST_LANGUAGES all of them.
std::vector<std::string> Locales() {
  if (!qEnvironmentVariableIsSet("TEST_LANGUAGES")) return {"en_US.UTF-8", "zh_CN.UTF-8"};
  std::vector<std::string> locales;
  for (const CatalogLanguage& language : CatalogLanguages(CatalogFolders()))
    locales.push_back(LocaleOf(language.id));
  return locales;
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, ScreenSizeTest, testing::ValuesIn(Locales()));

// Tabs must show their texts whole too.
TEST_F(LanguageTest, NothingIsClipped) {
  for (const CatalogLanguage& language : CatalogLanguages(CatalogFolders())) {
    SCOPED_TRACE(language.tag);
    Use(LocaleOf(language.id));
    const auto expectRoom = [](OpenDialog& open, CTabPage& page) {
      ExpectNothingClipped(page);
      const QSize screen = page.screen()->availableGeometry().size();
      EXPECT_EQ(open.Dialog().size().boundedTo(screen), open.Dialog().size());
      const auto& tabs = *open.Dialog().findChild<QTabBar*>();
      const int around = tabs.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &tabs);
      int left = tabs.width();  // beside all captions and the space around them
      for (int i = 0; i < tabs.count(); ++i)
        left -= TextSize(tabs, tabs.tabText(i)).width() + around;
      for (int i = 0; i < tabs.count(); ++i) {
        EXPECT_LE(tabs.tabRect(i).right(), tabs.width()) << tabs.tabText(i).toStdString();
        if (left < 0) continue;  // Captions are shortened only where they do not fit.
        EXPECT_GE(tabs.tabRect(i).width(), TextSize(tabs, tabs.tabText(i)).width())
            << tabs.tabText(i).toStdString();
      }
    };
    ForEachPage(expectRoom, FewModels());
    ForEachPopup([](CDialog& popUp) { ExpectNothingClipped(popUp); });
  }
}

// The languages that the build makes from English have longer texts and the other direction.
TEST_F(LanguageTest, NothingIsClippedInTheLanguagesForTests) {
  const std::string folder = TEST_PSEUDO_DIR;
  for (const char* locale : {"qps-ploc", "qps-plocm"}) {
    SCOPED_TRACE(locale);
    qputenv("LC_ALL", locale);
    ASSERT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
    ForEachPage([](OpenDialog&, CTabPage& page) { ExpectNothingClipped(page); }, Models());
    ForEachPopup([](CDialog& popUp) { ExpectNothingClipped(popUp); });
  }
}

}  // namespace

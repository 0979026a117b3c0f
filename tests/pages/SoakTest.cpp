// Random user actions on the whole dialog of every model, with a projector that refuses and fails
// at random; afterwards every control must show what the projector itself says. SOAK_SEED gives
// another walk, SOAK_ACTIONS a longer one.

#include <algorithm>
#include <cstdlib>
#include <random>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "settings/PageTables.h"
#include "settings/RowUse.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Models.h"

namespace {

constexpr int kActionsPerModel = 3000;

int Given(const char* variable, int otherwise) {
  const char* given = std::getenv(variable);
  return given != nullptr ? static_cast<int>(std::strtol(given, nullptr, 10)) : otherwise;
}

struct SoakModelCode {
  int dialogType;
  int modelCode;
};
void PrintTo(const SoakModelCode& model, std::ostream* stream) {
  *stream << "type " << model.dialogType << " code " << model.modelCode;
}

class RandomUser {
 public:
  RandomUser(CAdvanceDlg& dialog, FaultChannel& faults, unsigned seed)
      : dialog_(dialog), faults_(faults), random_(seed) {
    // Whatever comes up above the dialog is used for a moment and closed.
    QObject::connect(&popups_, &QTimer::timeout, [this] { UsePopup(); });
    QObject::connect(&boxes_, &QTimer::timeout, [this] { AnswerBox(); });
    popups_.start(0);
    boxes_.start(0);
  }

  void Act() {
    faults_.SetFault({.kind = Pick(10) < 2   ? Fault::Kind::Refuse
                              : Pick(10) < 1 ? Fault::Kind::FailRead
                                             : Fault::Kind::None});
    if (Pick(25) == 0) {
      auto* tabs = dialog_.findChild<QTabBar*>();
      tabs->setCurrentIndex(Pick(tabs->count()));
    } else if (CTabPage* page = dialog_.ShownPage()) {
      ActOn(*page);
    }
  }

 private:
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

  void ActOn(CDialog& dialog) {
    std::vector<QWidget*> usable;
    for (const RowTemplate& row : dialog.Template()->rows) {
      for (const ControlTemplate& control : row.controls) {
        QWidget* widget = dialog.GetDlgItem(control.id);
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled() ||
            control.kind == ControlKind::Close) {
          continue;
        }
        usable.push_back(widget);
      }
    }
    if (usable.empty()) return;
    Use(*usable[static_cast<std::size_t>(Pick(static_cast<int>(usable.size())))]);
  }

  void Use(QWidget& widget) {
    static constexpr Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down,     Qt::Key_Left,
                                       Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Space,
                                       Qt::Key_End,  Qt::Key_Return,   Qt::Key_Tab};
    if (qobject_cast<QLabel*>(&widget) != nullptr) return;
    widget.setFocus();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && Pick(4) != 0) {
      QTest::mouseClick(button, Qt::LeftButton);
    } else if (qobject_cast<QSlider*>(&widget) != nullptr && Pick(2) == 0) {
      const QPoint from(Pick(widget.width()), Pick(widget.height()));
      const QPoint to(Pick(widget.width()), Pick(widget.height()));
      QTest::mousePress(&widget, Qt::LeftButton, {}, from);
      QTest::mouseMove(&widget, to);
      QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    } else if (Pick(4) == 0) {
      const QPointF at = widget.rect().center();
      QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, Pick(2) == 0 ? 120 : -120},
                        Qt::NoButton, {}, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&widget, &event);
    } else {
      QTest::keyClick(&widget, keys[Pick(std::size(keys))]);
      if (QWidget* popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup->focusWidget() != nullptr ? popup->focusWidget() : popup,
                        Qt::Key_Enter);
      }
      if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }
  }

  void AnswerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    const auto buttons = box->buttons();
    QTest::mouseClick(buttons[Pick(static_cast<int>(buttons.size()))], Qt::LeftButton);
  }

  void UsePopup() {
    auto* popup = qobject_cast<CDialog*>(QApplication::activeModalWidget());
    if (popup == nullptr) return;
    for (int i = 0; i < 10 && popup->isVisible(); ++i) ActOn(*popup);
    popup->reject();
  }

  CAdvanceDlg& dialog_;
  FaultChannel& faults_;
  std::mt19937 random_;
  QTimer popups_;
  QTimer boxes_;  // a timer of its own: boxes come up while a pop-up is in use
};

// What a control of a row shows, and what it has to show for the projector's value.
void ExpectShows(const ListRow& row, int value, const CTabPage& page, const ModelData&) {
  const auto& list = page.Item<CComboBox>(row.control);
  EXPECT_TRUE(list.isEnabled());
  int position = list.findData(value);
  if (position < 0 && row.rules.noEntry == NoEntry::IsPosition && value < list.count()) {
    position = value;
  }
  if (position >= 0 || row.rules.noEntry == NoEntry::Clears) {
    EXPECT_EQ(list.currentIndex(), position);
  }
}

void ExpectShows(const ValueRow& row, int value, const CTabPage& page, const ModelData&) {
  EXPECT_EQ(page.Item<QLineEdit>(row.ids.field).text(), QString::number(value - row.bias));
  if (row.ids.slider == 0) return;
  const auto& slider = page.Item<QSlider>(row.ids.slider);
  EXPECT_TRUE(slider.isEnabled());
  EXPECT_EQ(slider.value(), std::clamp(value - row.bias, slider.minimum(), slider.maximum()));
}

void ExpectShows(const CheckRow& row, int value, const CTabPage& page, const ModelData&) {
  EXPECT_EQ(page.Item<QAbstractButton>(row.control).isChecked(), value != 0);
}

// The text of the state's entry, or the number, is somewhere in what is shown.
void ExpectShows(const StateRow& row, int value, const CTabPage& page, const ModelData& model) {
  const std::vector<ListEntry> texts = row.texts.Of(model);
  const int position = PositionOf(texts, value);
  const ListEntry text =
      position >= 0 ? texts[static_cast<std::size_t>(position)] : ListEntry(row.otherwise);
  const QString shown = page.Item<QLabel>(row.control).text();
  EXPECT_TRUE(shown.contains(text.text != 0 ? CatalogString(kListCategory, text.text, value)
                                            : QString::fromUtf8(text.name)))
      << shown.toStdString();
}

void ExpectShows(const auto&, int, const CTabPage&, const ModelData&) {}

void ExpectShowsProjector(const CTabPage& page, const PageTable& table, const ModelData& model,
                          CPjtInterface& projector) {
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const PageRow& row = table.rows[i];
    if (KeepsTemplate(table, model.ModelCode) || !Has(table, i, model.ModelCode)) continue;
    if (!ReadingOf(row, model)) continue;
    SCOPED_TRACE(KeyOf(row));
    const auto value = ReadRow(projector, row, model);
    ASSERT_TRUE(value);
    std::visit([&](const auto& kind) { ExpectShows(kind, *value, page, model); }, row);
  }
}

class SoakTest : public testing::TestWithParam<SoakModelCode> {};

TEST_P(SoakTest, EveryControlEndsUpShowingTheProjectorsValue) {
  const auto seed = static_cast<unsigned>(Given("SOAK_SEED", GetParam().modelCode));
  const CModelInfo2 info = FullModel(GetParam().dialogType, GetParam().modelCode);
  const ModelData model = MakeModelData(info);
  const auto projector = std::make_shared<SimulatedProjector>(DescribeModel(model));
  const auto faults = std::make_shared<FaultChannel>(projector);
  int changes = 0;
  CAdvanceDlg dialog;
  dialog.CopyData(&info, 0);
  dialog.Projector().SetChannel(std::make_shared<LoggingChannel>(
      faults, [&changes](const PjtCommand& command, const PjtReply&, auto) {
        changes += !IsRead(command.operation);
      }));
  ASSERT_TRUE(dialog.Create());
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  {
    RandomUser user(dialog, *faults, seed);
    const int actions = Given("SOAK_ACTIONS", kActionsPerModel);
    for (int i = 0; i < actions; ++i) {
      user.Act();
      ASSERT_TRUE(dialog.isVisible()) << "action " << i << " closed the dialog";
    }
  }
  EXPECT_GT(changes, 100) << "the user reached hardly any control";

  faults->Clear();
  auto* tabs = dialog.findChild<QTabBar*>();
  const auto pages = TabsOf(model.DialogType, model.ModelCode);
  for (int tab = 0; tab < tabs->count(); ++tab) {
    SCOPED_TRACE("tab " + std::to_string(tab));
    tabs->setCurrentIndex(tab);
    dialog.ShownPage()->InitDisp();
    const PageId page = tab == 0 ? PageId::Status : pages[static_cast<std::size_t>(tab) - 1].page;
    ExpectShowsProjector(*dialog.ShownPage(), TableOf(page), model, dialog.Projector());
  }
}

std::vector<SoakModelCode> SoakModels() {
  std::vector<SoakModelCode> models;
  for (const auto& [dialogType, codes] : ListedModels()) {
    for (const int code : codes) models.push_back({dialogType, code});
  }
  return models;
}

INSTANTIATE_TEST_SUITE_P(EveryModel, SoakTest, testing::ValuesIn(SoakModels()));

}  // namespace

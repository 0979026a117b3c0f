// A host that deletes the dialog's owner from the event loop that runs while a command waits or a
// box is open. What is touched afterwards, or leaks, the address sanitizer tells.

#include <atomic>
#include <thread>

#include <QApplication>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "device/BoundedChannel.h"
#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"

namespace {

using namespace std::chrono_literals;

constexpr int kPictureTab = 1;
constexpr int kActiveIris = 20293;
constexpr int kOptionTab = 7;
constexpr int kService = 20373;
constexpr int kRemoteTop = 20377;

class SlowProjector final : public ProjectorChannel {
 public:
  explicit SlowProjector(const CModelInfo2& model)
      : simulation_(DescribeModel(MakeModelData(model))) {}

  PjtReply Execute(const PjtCommand& command) override {
    ++sent;
    waiting = late.exchange(false);
    if (waiting) std::this_thread::sleep_for(100ms);
    waiting = false;
    if (refuses) return {.result = RefusedResult(command.operation)};
    return simulation_.Execute(command);
  }

  std::atomic<bool> late = false;  ///< Of the next command.
  std::atomic<bool> refuses = false;
  std::atomic<bool> waiting = false;
  std::atomic<int> sent = 0;

 private:
  SimulatedProjector simulation_;
};

enum class Death { Delete, DeleteLater };
enum class Run { Modal, Modeless };
enum class Moment { Opening, Refresh, Handler, PopUp, PopUpHandler, MessageBox };

class Host {
 public:
  explicit Host(Death death) : death_(death) { owner_->show(); }
  ~Host() { delete owner_; }

  QWidget* Owner() { return owner_; }

  void Prepare(CAdvanceDlg& dialog) {
    dialog.CopyData(&model_, 0);
    dialog.Projector().SetChannel(std::make_shared<BoundedChannel>(projector));
  }

  void LetDie() {
    sentAtDeath_ = projector->sent;
    waitedAtDeath_ = projector->waiting;
    if (death_ == Death::Delete) {
      delete owner_;
    } else {
      owner_->deleteLater();
    }
  }

  void Die(CAdvanceDlg& dialog, Moment moment) {
    const auto slowly = [this](const auto& act) {
      projector->late = true;
      QTimer::singleShot(30ms, qApp, [this] { LetDie(); });
      act();
    };
    auto* tabs = dialog.findChild<QTabBar*>();
    const auto page = [&] { return DialogDriver(*dialog.ShownPage()); };
    switch (moment) {
      case Moment::Opening:
        break;
      case Moment::Refresh:
        return slowly([&] { tabs->setCurrentIndex(kPictureTab); });
      case Moment::Handler:
        tabs->setCurrentIndex(kPictureTab);
        return slowly([&] { page().Choose(kActiveIris, 1); });
      case Moment::PopUp:
        tabs->setCurrentIndex(kOptionTab);
        return slowly([&] { page().Click(kService); });
      case Moment::PopUpHandler:
        tabs->setCurrentIndex(kOptionTab);
        QTimer::singleShot(50ms, qApp, [slowly] {
          auto* popup = qobject_cast<CDialog*>(QApplication::activeModalWidget());
          ASSERT_TRUE(popup != nullptr && popup->inherits("CServiceDlg"));
          slowly([popup] { DialogDriver(*popup).Click(kRemoteTop); });
        });
        return page().Click(kService);
      case Moment::MessageBox:
        tabs->setCurrentIndex(kPictureTab);
        projector->refuses = true;
        QTimer::singleShot(50ms, qApp, [this] {
          ASSERT_TRUE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
          LetDie();
        });
        return page().Choose(kActiveIris, 1);
    }
  }

  void ExpectEnded(bool whileWaiting) {
    EXPECT_EQ(owner_, nullptr);
    EXPECT_EQ(waitedAtDeath_, whileWaiting);
    EXPECT_EQ(projector->sent, sentAtDeath_) << "a command was sent afterwards";
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible()) << window->metaObject()->className();
    }
  }

 private:
  Death death_;
  CModelInfo2 model_ = FullModel(5, 30);
  QPointer<QWidget> owner_ = new QWidget;
  int sentAtDeath_ = -1;
  bool waitedAtDeath_ = false;

 public:
  std::shared_ptr<SlowProjector> projector = std::make_shared<SlowProjector>(model_);
};

class OwnerTest : public testing::TestWithParam<std::tuple<Death, Run, Moment>> {};

TEST_P(OwnerTest, DiesWhileTheDialogIsInUse) {
  const auto [death, run, moment] = GetParam();
  Host host(death);
  const QPointer<CAdvanceDlg> dialog = new CAdvanceDlg(new QWidget(host.Owner()));
  host.Prepare(*dialog);
  if (moment == Moment::Opening) {
    host.projector->late = true;
    QTimer::singleShot(30ms, qApp, [&host] { host.LetDie(); });
  }
  if (run == Run::Modal) {
    if (moment != Moment::Opening) {
      QTimer::singleShot(0, dialog, [&, moment = moment] { host.Die(*dialog, moment); });
    }
    EXPECT_EQ(dialog->DoModal(), QDialog::Rejected);
  } else {
    dialog->Create();
    ASSERT_NE(dialog, nullptr) << "deleted while it was created";
    dialog->show();
    host.Die(*dialog, moment);
  }
  host.ExpectEnded(moment != Moment::MessageBox);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialog == nullptr; })) << "leaks";
}

INSTANTIATE_TEST_SUITE_P(
    All, OwnerTest,
    testing::Combine(testing::Values(Death::Delete, Death::DeleteLater),
                     testing::Values(Run::Modal, Run::Modeless),
                     testing::Values(Moment::Opening, Moment::Refresh, Moment::Handler,
                                     Moment::PopUp, Moment::PopUpHandler, Moment::MessageBox)));

TEST(OwnerOfALocalDialog, DiesAndTheDialogIsThereToBeRunAgain) {
  for (const bool idle : {true, false}) {
    Host host(Death::Delete);
    CAdvanceDlg dialog(host.Owner());
    host.Prepare(dialog);
    QTimer::singleShot(0, qApp, [&] { idle ? host.LetDie() : host.Die(dialog, Moment::Handler); });
    EXPECT_EQ(dialog.DoModal(), QDialog::Rejected);
    host.ExpectEnded(!idle);

    const int sent = host.projector->sent;
    QTimer::singleShot(200ms, &dialog, &QDialog::accept);  // the old command comes back first
    EXPECT_EQ(dialog.DoModal(), QDialog::Accepted);
    EXPECT_GT(host.projector->sent, sent) << "the channel is back";
  }
}

TEST(OwnerOfADialogWithoutParent, DiesAndTakesItsBoxDown) {
  Host host(Death::Delete);
  host.Owner()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(host.Owner()));
  CAdvanceDlg dialog;
  host.Prepare(dialog);
  QTimer::singleShot(0, qApp, [&] { host.Die(dialog, Moment::MessageBox); });
  EXPECT_EQ(dialog.DoModal(), QDialog::Rejected);
  host.ExpectEnded(false);
}

}  // namespace

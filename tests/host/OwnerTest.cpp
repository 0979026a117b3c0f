// A host deletes the dialog's owner from the event loop that runs while a command waits or a
// message box is open. The address sanitizer reports uses of deleted objects and leaks.

#include <optional>

#include <QApplication>
#include <QTabBar>
#include <gtest/gtest.h>

#include "device/channels/BoundedChannel.h"
#include "pages/option/CServiceDlg.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/PacedProjector.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;

constexpr int kPictureTab = 1, kOptionTab = 7;
constexpr int kActiveIris = 20293, kService = 20373, kRemoteTop = 20377;

// Calls `act` from the event loop as soon as `isSo` returns true.
void When(const std::function<bool()>& isSo, const std::function<void()>& act) {
  auto* timer = new QTimer(qApp);
  timer->callOnTimeout([=] {
    if (!isSo()) return;
    timer->stop();
    timer->deleteLater();
    act();
  });
  timer->start(1);
}

// Calls `act` when everything has been read, however slow the machine is.
void WhenIdle(const CAdvanceDlg& dialog, const std::function<void()>& act) {
  When([&dialog] { return dialog.isVisible() && !dialog.IsBusy(); }, act);
}

enum class Moment { Opening, Refresh, Handler, PopUp, PopUpHandler, MessageBox };

bool IsModal(const char* name) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal->isVisible() && modal->inherits(name);
}

class Host {
 public:
  explicit Host(bool later = false) : later_(later) { owner_->show(); }
  ~Host() { delete owner_; }

  QWidget* Owner() { return owner_; }

  void Prepare(CAdvanceDlg& dialog) {
    dialog.CopyData(&model_, 0);
    dialog.Projector().SetChannel(
        std::make_shared<BoundedChannel>(projector, BoundedChannel::Limits{.timeOut = 1h}));
  }

  void DieWhileACommandWaits() {
    projector->Pace(1h);
    When([this] { return projector->waiting.load(); }, [this] { LetDie(); });
  }

  void LetDie() {
    sentAtDeath_ = projector->sent;
    waitedAtDeath_ = projector->waiting;
    later_ ? owner_->deleteLater() : delete owner_;
  }

  void Die(CAdvanceDlg& dialog, Moment moment) {
    if (moment == Moment::Opening) return;
    const bool popUp = moment == Moment::PopUp || moment == Moment::PopUpHandler;
    if (moment == Moment::Refresh) DieWhileACommandWaits();
    dialog.findChild<QTabBar*>()->setCurrentIndex(popUp ? kOptionTab : kPictureTab);
    if (moment == Moment::Refresh) return;
    if (moment == Moment::PopUpHandler) {
      When([] { return IsModal("CServiceDlg"); },
           [this] {
             DieWhileACommandWaits();
             DialogDriver(*qobject_cast<CDialog*>(QApplication::activeModalWidget()))
                 .Click(kRemoteTop);
           });
    } else if (moment == Moment::MessageBox) {
      projector->refuses = true;
      When([] { return IsModal("QMessageBox"); }, [this] { LetDie(); });
    } else {
      DieWhileACommandWaits();
    }
    const DialogDriver page(*dialog.ShownPage());
    popUp ? page.Click(kService) : page.Choose(kActiveIris, 1);
  }

  void ExpectEnded(bool whileWaiting) {
    projector->Pace(0ms);
    EXPECT_TRUE(owner_ == nullptr && waitedAtDeath_ == whileWaiting);
    EXPECT_EQ(projector->sent, sentAtDeath_) << "a command was sent afterwards";
    for (const QWidget* window : QApplication::topLevelWidgets())
      EXPECT_FALSE(window->isVisible()) << window->metaObject()->className();
  }

 private:
  bool later_;
  CModelInfo2 model_ = FullModel(5, 30);
  QPointer<QWidget> owner_ = new QWidget;
  int sentAtDeath_ = -1;
  bool waitedAtDeath_ = false;

 public:
  std::shared_ptr<PacedProjector> projector = std::make_shared<PacedProjector>(model_);
};

class OwnerTest : public testing::TestWithParam<std::tuple<bool, bool, Moment>> {};

TEST_P(OwnerTest, DiesWhileTheDialogIsInUse) {
  const auto [later, modal, moment] = GetParam();
  Host host(later);
  const QPointer<CAdvanceDlg> dialog = new CAdvanceDlg(new QWidget(host.Owner()));
  host.Prepare(*dialog);
  if (moment == Moment::Opening) host.DieWhileACommandWaits();
  if (modal) {
    if (moment != Moment::Opening)
      WhenIdle(*dialog, [&, moment = moment] { host.Die(*dialog, moment); });
    EXPECT_EQ(dialog->DoModal(), QDialog::Rejected);
  } else {
    dialog->Create();
    ASSERT_NE(dialog, nullptr) << "deleted while it was created";
    dialog->show();
    host.Die(*dialog, moment);
  }
  host.ExpectEnded(moment != Moment::MessageBox);
  EXPECT_TRUE(Soon([&] { return dialog == nullptr; })) << "leaks";
}

INSTANTIATE_TEST_SUITE_P(
    All, OwnerTest,
    testing::Combine(testing::Bool(), testing::Bool(),
                     testing::Values(Moment::Opening, Moment::Refresh, Moment::Handler,
                                     Moment::PopUp, Moment::PopUpHandler, Moment::MessageBox)));

void ExpectToRunAgain(const std::function<CAdvanceDlg&(QWidget*)>& make) {
  for (const bool idle : {true, false}) {
    Host host;
    CAdvanceDlg& dialog = make(host.Owner());
    host.Prepare(dialog);
    WhenIdle(dialog, [&] { idle ? host.LetDie() : host.Die(dialog, Moment::Handler); });
    EXPECT_EQ(dialog.DoModal(), QDialog::Rejected);
    host.ExpectEnded(!idle);

    const int sent = host.projector->sent;
    When([&] { return host.projector->sent > sent && !dialog.IsBusy(); }, [&] { dialog.accept(); });
    QTimer::singleShot(60s, &dialog, &QDialog::reject);
    EXPECT_EQ(dialog.DoModal(), QDialog::Accepted) << "the channel is not back";
  }
}

TEST(OwnerOfALocalDialogOrOneInASmartPointer, DiesAndTheDialogCanRunAgain) {
  std::optional<CAdvanceDlg> local;
  ExpectToRunAgain([&](QWidget* owner) -> CAdvanceDlg& { return local.emplace(owner); });
  std::unique_ptr<CAdvanceDlg> dialog;
  ExpectToRunAgain([&](QWidget* owner) -> CAdvanceDlg& {
    dialog = std::make_unique<CAdvanceDlg>(owner);
    dialog->SetDeletedWithOwner(false);
    return *dialog;
  });
}

TEST(OwnerOfADialogWithoutParent, DiesAndClosesTheDialogsAboveIt) {
  for (const auto moment : {Moment::MessageBox, Moment::PopUp, Moment::Opening}) {
    Host host;
    Activate(*host.Owner());
    const auto heap = std::make_unique<CAdvanceDlg>();
    CAdvanceDlg& dialog = *heap;
    host.Prepare(dialog);
    WhenIdle(dialog, [&, moment] {
      if (moment == Moment::MessageBox) return host.Die(dialog, moment);
      if (moment == Moment::Opening) return host.LetDie();  // nothing runs
      When([] { return IsModal("CServiceDlg"); }, [&] { host.LetDie(); });
      CServiceDlg popup(nullptr);
      popup.projector = &dialog.Projector();
      popup.DoModal();
    });
    EXPECT_EQ(dialog.DoModal(), QDialog::Rejected);
    host.ExpectEnded(false);
    short mirror = 0;
    EXPECT_EQ(dialog.Projector().GetMirror(&mirror), 0) << "its channel is taken away";
  }
}

}  // namespace

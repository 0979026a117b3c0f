// A random walk through the whole program: its window, its dialogs, and dialogs of other owners.
// Owners die, input arrives and tabs change at any time, even while a command waits. Afterwards
// every dialog must show what the projector holds. The walk ends in the middle of a time-out. The
// sanitizers report uses of deleted objects. WALK_SEED selects another walk, WALK_ACTIONS a longer
// one.

#include <iterator>
#include <random>

#include <QAbstractButton>
#include <QTabBar>
#include <QTest>

#include "host/FindLine.h"
#include "tests/app/Windows.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/ShownValues.h"

namespace {

using namespace std::chrono_literals;

const std::vector kProfiles{Profile("A"), Profile("B", MakeModel(4, 9)),
                            Profile("C", MakeModel(2, 6))};

class Walk {
 public:
  Walk(unsigned seed, int actions) : actions_(actions), random_(seed) {
    for (std::size_t i = 0; i < kProfiles.size(); ++i) sessions_.push_back(window_->Session(i));
    for (const FleetProfile& profile : kProfiles) {
      sessions_.push_back(std::make_shared<ProjectorSession>(profile, nullptr));
    }
    window_->show();
  }
  ~Walk() {
    window_.reset();
    for (const auto& owner : owners_) delete owner;
  }

  void Run() {
    QTimer::singleShot(0, qApp, [this] { Step(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(done_, actions_);
  }

  int opened = 0;
  int died = 0;
  int diedInMidCommand = 0;
  int checked = 0;

 private:
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  template <class Item>
  Item& Any(std::vector<Item>& items) {
    return items[static_cast<std::size_t>(Pick(static_cast<int>(items.size())))];
  }

  // Schedules the next step first, because it may have to run in an event loop inside this one.
  void Step() {
    if (done_ == actions_) return Settle();
    ++done_;
    QTimer::singleShot(3ms, qApp, [this] { Step(); });
    ++depth_;
    Act();
    --depth_;
  }

  void Act() {
    const int choice = Pick(20);
    if (choice < 2) return ChangeFaults();
    if (choice < 3) return Open();
    if (choice < 5) return OpenForeign();
    if (choice < 7) return KillOwner();
    if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        modal != nullptr && (choice < 10 || depth_ > 1)) {
      return modal->done(QDialog::Rejected);
    }
    std::vector<CAdvanceDlg*> dialogs = Dialogs();
    if (dialogs.empty()) return Open();
    CAdvanceDlg& dialog = *Any(dialogs);
    auto* tabs = dialog.findChild<QTabBar*>();
    const int tab = Pick(tabs->count());
    if (choice == 7) {
      Pick(2) == 0 ? void(dialog.close()) : QTest::keyClick(&dialog, Qt::Key_Escape);
    } else if (choice == 8) {
      tabs->setCurrentIndex(tab);
    } else if (choice < 11) {
      QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
    } else if (choice == 11) {
      QTest::keyClick(&dialog, Qt::Key_F, Qt::ControlModifier);
      auto* line = dialog.findChild<FindLine*>();
      if (line == nullptr) return;  // the dialog took no input
      QTest::keyClicks(line, QStringLiteral("r"));
      QTest::keyClick(line, Qt::Key_Return);
    } else {
      Use(*dialog.ShownPage());
    }
  }

  std::vector<CAdvanceDlg*> Dialogs() const {
    std::vector<CAdvanceDlg*> dialogs;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<CAdvanceDlg*>(widget);
      if (dialog != nullptr && dialog->isVisible() && dialog->ShownPage() != nullptr) {
        dialogs.push_back(dialog);
      }
    }
    std::ranges::sort(dialogs, {}, [](const QWidget* dialog) { return dialog->winId(); });
    return dialogs;
  }

  void ChangeFaults() {
    for (const auto& session : sessions_) {
      const int kind = std::max(0, Pick(9) - 4);  // usually 0
      session->SetFault(std::monostate(),
                        {static_cast<Fault::Kind>(kind), std::chrono::milliseconds(10 + Pick(40))});
    }
  }

  void SetFaults(const Fault& fault) {
    for (const auto& session : sessions_) session->SetFault(std::monostate(), fault);
  }

  void Open() { opened += window_->OpenDialog(static_cast<std::size_t>(Pick(3))) != nullptr; }

  void OpenForeign() {
    std::erase_if(owners_, [](const auto& owner) { return owner == nullptr; });
    if (owners_.size() == 4) return KillOwner();
    const auto& session = Any(sessions_);
    owners_.emplace_back(new QWidget)->show();
    const QPointer dialog = new CAdvanceDlg(owners_.back());
    const CModelInfo2 model = ModelInfoOf(session->Profile());
    dialog->CopyData(&model, 0);
    dialog->Projector().SetChannel(session->Channel());
    ++opened;
    if (Pick(2) == 0 && depth_ == 1) {
      const int depth = std::exchange(depth_, 0);
      dialog->DoModal();
      depth_ = depth;
    } else if (dialog->Create()) {
      dialog->show();
    }
  }

  void KillOwner() {
    if (owners_.empty()) return;
    const QPointer owner = Any(owners_);
    if (owner == nullptr) return;
    ++died;
    diedInMidCommand += depth_ > 1;
    if (Pick(2) == 0) return delete owner;
    owner->deleteLater();
  }

  void Use(CTabPage& page) {
    std::vector<QWidget*> usable = UsableControls(page);
    if (usable.empty()) return;
    static constexpr Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
    QWidget* control = Any(usable);
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
      // `click` is what a screen reader does.
      Pick(2) != 0 ? QTest::mouseClick(button, Qt::LeftButton) : button->click();
    } else {
      QTest::keyClick(control, keys[Pick(std::size(keys))]);
    }
  }

  void Settle() {
    SetFaults({});
    while (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      modal->done(QDialog::Rejected);
    }
    QTimer::singleShot(500ms, qApp, [this] {
      if (Dialogs().empty()) Open();
      for (CAdvanceDlg* dialog : Dialogs()) {
        dialog->Projector().AllowRetry();
        dialog->DispTabScreen();
        ExpectShowsProjector(*dialog);
        ++checked;
      }
      Quit();
    });
  }

  // Quits in the middle of a time-out.
  void Quit() {
    const std::vector<CAdvanceDlg*> dialogs = Dialogs();
    SetFaults({Fault::Kind::DropOut});
    QTimer::singleShot(50ms, window_.get(), &QWidget::close);
    if (!dialogs.empty()) dialogs.front()->DispTabScreen();
  }

  const int actions_;
  int done_ = 0;
  int depth_ = 0;  // of nested steps
  std::mt19937 random_;
  ProjectorSessions sessions_;
  std::unique_ptr<MainWindow> window_ = std::make_unique<MainWindow>(kProfiles);
  std::vector<QPointer<QWidget>> owners_;  // of dialogs that the window does not own
};

TEST(RandomWalk, ThroughTheWholeProgramUsesNoDeletedObject) {
  {
    Walk walk(static_cast<unsigned>(EnvironmentNumber("WALK_SEED", 1)),
              EnvironmentNumber("WALK_ACTIONS", 500));
    walk.Run();
    EXPECT_GT(walk.opened, 10);
    EXPECT_GT(walk.died, 10);
    EXPECT_GT(walk.diedInMidCommand, 2);
    EXPECT_GT(walk.checked, 0);
  }
  EXPECT_TRUE(Soon([] {
    return std::ranges::none_of(QApplication::topLevelWidgets(), [](const QWidget* widget) {
      return qobject_cast<const CDialog*>(widget) != nullptr;
    });
  }));
}

}  // namespace

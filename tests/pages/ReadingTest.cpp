// What a page announces and dims at each command of its reading, and that a reading that is left
// changes nothing. After an intended change, rewrite the file with UPDATE_LISTING=1 and review the
// differences.

#include <QTest>

#include "device/channels/LoggingChannel.h"
#include "tests/pages/EachPage.h"
#include "tests/support/Record.h"

namespace {

struct WatchedProjector final : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    watch(commands++);
    const auto result = refuses ? RefusedResult : AcceptedResult;
    return {.result = result(command.operation), .value = 1};
  }
  void Announce(std::span<const PjtCommand> reads) override {
    for (const PjtCommand& read : reads) announced += ' ' + FormatCommand(read);
    announced += ';';
  }

  std::function<void(int at)> watch = [](int) {};  // called during each command
  int commands = 0;
  std::string announced;
  bool refuses = false;
};

QWidget* VeilOf(const CDialog& page) {
  const auto all = page.findChildren<QWidget*>();
  const auto found =
      std::ranges::find(all, Qt::WaitCursor, [](auto* w) { return w->cursor().shape(); });
  return found == all.end() ? nullptr : *found;
}

// A sign for each row: # if it is dimmed.
std::string Dimmed(const RowDialog& page) {
  QWidget* const veil = VeilOf(page);
  if (veil == nullptr) return "none";
  EXPECT_TRUE(veil->isVisibleTo(&page));
  EXPECT_NE(veil->geometry() == page.rect(), page.isWindow()) << "Close is not covered";
  QImage drawn(veil->size(), QImage::Format_RGB32);
  drawn.fill(Qt::black);
  veil->render(&drawn, {}, {}, {});
  std::string signs;
  for (const RowTemplate& row : page.Template()->rows) {
    const int id = row.controls.front().id;
    const QPoint at = page.RowRect(id).center() - veil->pos();
    const int grey = drawn.valid(at) ? qGray(drawn.pixel(at)) : 0;
    if (page.GetDlgItem(id)->isVisibleTo(&page)) signs += grey == 0 ? '.' : grey < 200 ? '#' : 'X';
  }
  return signs;
}

// What its controls show.
QStringList Shown(const CDialog& page) {
  QStringList shown;
  for (const QWidget* control : page.findChildren<QWidget*>())
    for (const char* what : {"enabled", "text", "currentIndex", "value", "checked"})
      if (control != VeilOf(page)) shown << control->property(what).toString();
  return shown;
}

// The announcements and the dimmed rows at each command of a reading; then, for a reading that is
// left at each command, the dimmed rows and how much else has changed.
std::string Described(RowDialog& page, WatchedProjector& projector,
                      const std::function<void()>& read, const std::function<void()>& leave) {
  std::string text = "\n";
  const auto readWhile = [&](const std::function<void(int at)>& watch) {
    projector.commands = 0;
    projector.watch = watch;
    read();
    projector.watch = [](int) {};
    projector.refuses = false;
    page.Reader().ShowWaiting(false);
    return projector.commands;
  };
  projector.announced.clear();
  const int all = readWhile([&](int) {
    page.Reader().ShowWaiting(true);
    text += "  " + page.Reader().WaitingText().toStdString() + ' ' + Dimmed(page) +
            std::exchange(projector.announced, {}) + '\n';
  });
  EXPECT_EQ(VeilOf(page), nullptr);
  for (int left = 0; left < all; ++left) {
    const QStringList shown = Shown(page);
    readWhile([&](int at) {
      if (at != left) return;
      page.Reader().ShowWaiting(true);
      leave();
      projector.refuses = true;
    });
    text += ' ' + Dimmed(page) + (Shown(page) == shown ? "" : " changed");
    readWhile([&](int) { EXPECT_EQ(VeilOf(page), nullptr) << "not for a quick reading"; });
  }
  return text + '\n';
}

TEST(Readings, AreAsRecorded) {
  std::string record;
  for (const CModelInfo2& model : {FullModel(1, 1), FullModel(5, 42), FullModel(5, 30)}) {
    const auto projector = std::make_shared<WatchedProjector>();
    CAdvanceDlg dialog;
    Open(dialog, model, projector);
    auto& tabs = *dialog.findChild<QTabBar*>();
    for (int tab = tabs.count() - 1; tab > 0; --tab) {
      tabs.setCurrentIndex(tab);
      const auto read = [&] {
        tabs.currentIndex() == tab ? dialog.DispTabScreen() : tabs.setCurrentIndex(tab);
      };
      record += NameOf(model) + ' ' + tabs.tabText(tab).toStdString() +
                Described(*dialog.ShownPage(), *projector, read, [&] { tabs.setCurrentIndex(0); });
    }
    if (model.DialogType != 5) continue;
    for (const PopUp kind : {PopUp::Service, PopUp::Gamma}) {
      const auto popUp = MakePopUp(kind, dialog);
      Open(*popUp);
      const auto read = [&] {
        if (!popUp->isVisible()) Open(*popUp);
        Activate(*popUp);
        QTest::keyClick(popUp.get(), Qt::Key_F5);
      };
      record +=
          NameOf(model) + " pop-up" + Described(*popUp, *projector, read, [&] { popUp->reject(); });
    }
  }
  ExpectRecord(TEST_SOURCE_DIR "/pages/Readings.txt", record);
}

}  // namespace

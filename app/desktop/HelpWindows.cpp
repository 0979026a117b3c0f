#include "app/desktop/HelpWindows.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

#include "app/desktop/Mnemonic.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kIconSize = 64;
constexpr int kFrameHeight = 40;  // of a window; a guess until it is shown

struct HelpText {
  Q_DECLARE_TR_FUNCTIONS(HelpWindows)
};

QString ShownText(const QAction& action) {
  return WithoutMnemonic(action.text()).remove(QStringLiteral("…"));
}

/// As large as the table. If the screen is too small for it, the table scrolls.
void ShowTable(const QString& title, const QString& table, QWidget& owner) {
  auto* dialog = new QDialog(&owner);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(title);
  auto* text = new QTextBrowser;
  text->setHtml(table);
  text->setFrameShape(QFrame::NoFrame);
  text->setAccessibleName(title);
  text->setTabChangesFocus(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(text);
  layout->addWidget(buttons);
  RemoveForeignButtonIcons(*dialog);
  QTextDocument document;
  document.setDefaultFont(text->font());
  document.setHtml(table);
  const QSize size = document.size().toSize();
  text->setMinimumWidth(size.width() + text->verticalScrollBar()->sizeHint().width());
  const int others = layout->sizeHint().height() - text->sizeHint().height();
  const int availableHeight = owner.screen()->availableGeometry().height() - kFrameHeight;
  dialog->resize(dialog->minimumWidth(), std::min(size.height() + others, availableHeight));
  dialog->open();
}

}  // namespace

void ShowShortcuts(QMainWindow& window) {
  QString rows;
  // The direction of a table turns its texts, but not its columns.
  const bool isTurned = QApplication::isRightToLeft();
  const auto add = [&](const QString& keys, const QString& what) {
    const QString first = QStringLiteral("<td>%1</td>").arg(keys.toHtmlEscaped());
    const QString second =
        QStringLiteral("<td>&nbsp;&nbsp;&nbsp;%1</td>").arg(what.toHtmlEscaped());
    rows += QStringLiteral("<tr>%1</tr>").arg(isTurned ? second + first : first + second);
  };
  const auto section = [&rows](const QString& title) {
    rows += QStringLiteral("<tr><td colspan=2><b>%1</b></td></tr>").arg(title.toHtmlEscaped());
  };
  for (const QAction* menu : window.menuBar()->actions()) {
    section(ShownText(*menu));
    for (const QAction* action : menu->menu()->actions()) {
      if (action->shortcut().isEmpty()) continue;
      add(action->shortcut().toString(QKeySequence::NativeText), ShownText(*action));
    }
  }
  section(HelpText::tr("In a projector's dialog"));
  add(HelpText::tr("Ctrl+Tab, Ctrl+Page Down"), HelpText::tr("Next tab"));
  add(HelpText::tr("Ctrl+Shift+Tab, Ctrl+Page Up"), HelpText::tr("Previous tab"));
  add(HelpText::tr("Ctrl+F"), HelpText::tr("Find a setting"));
  add(HelpText::tr("Esc"), HelpText::tr("Close"));
  const QString direction = isTurned ? "rtl" : "ltr";
  ShowTable(HelpText::tr("Keyboard Shortcuts"),
            QStringLiteral("<table dir=%1>%2</table>").arg(direction, rows), window);
}

void ShowAbout(QWidget& window) {
  auto* about = new QMessageBox(QMessageBox::NoIcon, HelpText::tr("About"),
                                HelpText::tr("<h3>Advanced Control %1</h3><p>The live settings of "
                                             "projectors: every value is read from "
                                             "the projector, every change is sent at once.</p>")
                                    .arg(QStringLiteral(ADVANCED_CONTROL_VERSION)),
                                QMessageBox::Ok, &window);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->setIconPixmap(window.windowIcon().pixmap(kIconSize));
  RemoveForeignButtonIcons(*about);
  about->open();
}

#include "app/desktop/Notify.h"

#include <algorithm>

#include <QCoreApplication>
#include <QMainWindow>
#include <QStringList>
#include <QSystemTrayIcon>

namespace {

constexpr qsizetype kMostLines = 5;

}  // namespace

void Notify(QMainWindow& window, const QStringList& texts) {
  if (!QSystemTrayIcon::isSystemTrayAvailable()) return;
  auto* icon = window.findChild<QSystemTrayIcon*>();
  if (icon == nullptr) {
    icon = new QSystemTrayIcon(window.windowIcon(), &window);
    QObject::connect(icon, &QSystemTrayIcon::messageClicked, &window, [&window] {
      window.raise();
      window.activateWindow();
    });
    icon->show();
  }
  QString text = texts.first(std::min(texts.size(), kMostLines)).join(QLatin1Char('\n'));
  if (texts.size() > kMostLines) text += QStringLiteral("\n…");
  icon->showMessage(QCoreApplication::translate("Notify", "Advanced Control"), text,
                    QSystemTrayIcon::Warning);
}

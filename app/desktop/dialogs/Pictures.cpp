#include "app/desktop/dialogs/Pictures.h"

#include <memory>
#include <utility>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>

#include "app/desktop/projectors/ProjectorSession.h"
#include "fleet/WholeFile.h"
#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"

namespace {

struct Picture {
  QString tab;
  QPixmap pixmap;
};

/// A shown dialog with a new simulation.
class OpenedDialog {
 public:
  explicit OpenedDialog(const FleetProfile& profile) : session_(profile, nullptr) {
    dialog_ = session_.MakeDialog();
    if (!dialog_->Create()) dialog_.reset();
    if (!dialog_) return;
    dialog_->resize(dialog_->sizeHint());  // independent of the size of the screen
    dialog_->show();
  }

  CAdvanceDlg* Dialog() const { return dialog_.get(); }

  QPixmap Grab() const {
    QCoreApplication::processEvents();
    return dialog_->grab();
  }

 private:
  ProjectorSession session_;
  std::unique_ptr<CAdvanceDlg> dialog_;
};

// The controls of the shown page, for comparing.
QString LookOf(const CAdvanceDlg& dialog) {
  const CTabPage* page = dialog.ShownPage();
  if (page == nullptr) return QStringLiteral("none;");
  QString look = QStringLiteral("%1:").arg(page->TemplateNumber());
  for (const QWidget* child : page->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    look += QLatin1Char(child->isVisibleTo(page) ? '1' : '0');
  }
  return look + QLatin1Char(';');
}

QString FileNamePart(const QString& text) {
  static const QRegularExpression other(QStringLiteral("[^\\w]+"),
                                        QRegularExpression::UseUnicodePropertiesOption);
  return text.toLower().replace(other, QStringLiteral("_"));
}

QString Save(const QPixmap& pixmap, const QString& fileName) {
  QBuffer bytes;
  pixmap.save(&bytes, "PNG");
  return WriteWholeFile(fileName, bytes.data());
}

QString CannotOpen(const FleetProfile& profile) {
  return QCoreApplication::translate("Pictures", "the dialog of %1 cannot be created")
      .arg(QString::fromStdString(profile.name));
}

constexpr const char* kIndexHead =
    "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Advanced Control</title>\n"
    "<style>body{font-family:sans-serif;margin:2em}figure{display:inline-block;margin:0 1em 1em 0}"
    "</style></head><body>\n<h1>Advanced Control</h1>\n";

}  // namespace

QString MakePictureFolder(const QString& folder) {
  if (QDir().mkpath(folder) && QFileInfo(folder).isWritable()) return {};
  return QCoreApplication::translate("Pictures", "cannot write to the folder %1").arg(folder);
}

QString SaveScreenshot(const FleetProfile& profile, int tab, const QString& fileName) {
  const OpenedDialog opened(profile);
  if (opened.Dialog() == nullptr) return CannotOpen(profile);
  opened.Dialog()->findChild<QTabBar*>()->setCurrentIndex(tab);
  return Save(opened.Grab(), fileName);
}

TourResult SaveTour(const std::vector<FleetProfile>& profiles, const QString& folder) {
  TourResult result;
  const QDir directory(folder);
  QByteArray index = kIndexHead;
  QSet<QString> seen;
  for (const FleetProfile& profile : profiles) {
    const OpenedDialog opened(profile);
    if (opened.Dialog() == nullptr) {
      result.error = CannotOpen(profile);
      return result;
    }
    QTabBar* tabs = opened.Dialog()->findChild<QTabBar*>();
    QString look;
    std::vector<Picture> pictures;
    for (int tab = 0; tab < tabs->count(); ++tab) {
      tabs->setCurrentIndex(tab);
      pictures.push_back({tabs->tabText(tab), opened.Grab()});
      look += LookOf(*opened.Dialog());
    }
    if (seen.contains(look)) continue;
    seen.insert(look);
    ++result.projectors;
    index += QStringLiteral("<h2>%1 (dialog type %2, model code %3)</h2>\n")
                 .arg(QString::fromStdString(profile.name).toHtmlEscaped())
                 .arg(profile.model->info.DialogType)
                 .arg(profile.model->info.ModelCode)
                 .toUtf8();
    for (std::size_t tab = 0; tab < pictures.size(); ++tab) {
      const QString name = QStringLiteral("%1-%2-%3-%4.png")
                               .arg(profile.model->info.DialogType)
                               .arg(profile.model->info.ModelCode)
                               .arg(tab)
                               .arg(FileNamePart(pictures[tab].tab));
      result.error = Save(pictures[tab].pixmap, directory.filePath(name));
      if (!result.error.isEmpty()) return result;
      ++result.pictures;
      index += QStringLiteral(
                   "<figure><img src=\"%1\" alt=\"%2\"><figcaption>%2</figcaption>"
                   "</figure>\n")
                   .arg(name.toHtmlEscaped(), pictures[tab].tab.toHtmlEscaped())
                   .toUtf8();
    }
  }
  index += "</body></html>\n";
  result.error = WriteWholeFile(directory.filePath(QStringLiteral("index.html")), index);
  return result;
}

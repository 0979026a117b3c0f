#pragma once

#include <map>
#include <set>
#include <vector>

#include <QString>
#include <QStringList>
#include <QWidget>

#include "app/desktop/alerts/AlertRules.h"

class QPushButton;
class QTreeWidget;

/// The present alerts, with buttons to acknowledge them. An acknowledged alert stays in the list
/// until its cause is gone; if the cause comes back, so does the alert.
class AlertList : public QWidget {
  Q_OBJECT

 public:
  explicit AlertList(QWidget* parent = nullptr);

  void SetRules(const AlertRules& rules) { rules_ = rules; }
  /// Takes over the alerts that the rules find in these projectors.
  void Look(const std::vector<ProjectorRow>& rows, SessionTime now);
  /// Those that nobody has acknowledged.
  std::vector<Alert> Open() const;

  /// The acknowledged alerts, for the next run of the program.
  QStringList Acknowledged() const;
  /// Those of the last run: each one that is still there when its projector is known again stays
  /// acknowledged.
  void RememberAcknowledged(const QStringList& alerts);

 Q_SIGNALS:
  /// The alerts have changed, or some were acknowledged.
  void Changed();
  /// New alerts, a line of text each, for a notification.
  void Raised(const QStringList& texts);
  void Activated(const std::string& id);

 private:
  struct Entry {
    QString since;
    QString text{};
    unsigned seen = 0;  ///< The value of `looks_` when the alert was last found.
    bool isAcknowledged = false;
  };

  QString TextOf(const Alert& alert, const ProjectorRow& row) const;
  void ForgetGone(const ProjectorRow& row);
  void Acknowledge(bool all);
  void Show();

  AlertRules rules_;
  std::map<Alert, Entry> alerts_;
  /// Acknowledged in the last run, or before another file was opened, and not found yet.
  std::set<Alert> earlier_;
  unsigned looks_ = 0;
  QTreeWidget* list_;
  QPushButton* acknowledge_;
  QPushButton* acknowledgeAll_;
};

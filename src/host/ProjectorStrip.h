#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QString>
#include <QTimer>
#include <QWidget>

#include "Namespace.h"

class QLabel;
class QToolButton;

namespace AdvancedControl {

/// The line over the tabs: says which projector the dialog belongs to, whether it answers, and how
/// long ago the page was read, with a button that reads it again. User-interface thread only.
class ProjectorStrip final : public QWidget {
  Q_OBJECT

 public:
  using Age = std::optional<std::chrono::milliseconds>;

  /// `age` returns the time since the page was read; nothing if it was not.
  ProjectorStrip(QWidget* parent, std::function<Age()> age);

  /// Names the projector by the parts that are not empty: its own name, its model, its connection.
  void SetProjector(const QStringList& parts);
  void SetAnswers(bool answers);
  void ShowAge();

 Q_SIGNALS:
  void ReadAgain();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QString TextOf(const QStringList& parts) const;
  void ShowProjector();

  std::function<Age()> age_;
  QStringList parts_;
  std::optional<bool> answers_;  // nothing before the first answer is due
  QLabel* projector_;
  QLabel* read_;
  QToolButton* again_;
  QTimer second_;
};

}  // namespace AdvancedControl

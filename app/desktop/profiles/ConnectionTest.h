#pragma once

#include <functional>
#include <memory>

#include <QTimer>
#include <QWidget>

#include "device/Connect.h"
#include "fleet/LiveState.h"

namespace AdvancedControl {
class Fleet;
class SearchDriver;
}  // namespace AdvancedControl
class QLabel;
class QPushButton;

/// A button that asks the projector at an address who and how it is, and says what answers there.
class ConnectionTest : public QWidget {
  Q_OBJECT

 public:
  /// `address` returns the address that is typed now.
  explicit ConnectionTest(std::function<ProjectorAddress()> address, QWidget* parent = nullptr);
  ~ConnectionTest() override;

  /// Forgets the result: the address has changed.
  void Clear();

 private:
  void Begin();
  void Look();
  void AskWho();
  void Show(const QStringList& who);

  const std::function<ProjectorAddress()> address_;
  QPushButton* button_;
  QLabel* result_;
  QTimer looking_;
  std::unique_ptr<Fleet> fleet_;           // null while none is asked how it is
  std::unique_ptr<SearchDriver> inquiry_;  // null while none is asked who it is
  ProjectorAddress asked_;
  LiveState state_;  // of what answered
};

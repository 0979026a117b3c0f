#pragma once

#include <functional>
#include <memory>

#include <QTimer>
#include <QWidget>

#include "device/Connect.h"

namespace AdvancedControl {
class Fleet;
}
class QLabel;
class QPushButton;

/// A button that asks the projector at an address how it is, and says what answers there.
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

  const std::function<ProjectorAddress()> address_;
  QPushButton* button_;
  QLabel* result_;
  QTimer looking_;
  std::unique_ptr<Fleet> fleet_;  // null while none is asked
};

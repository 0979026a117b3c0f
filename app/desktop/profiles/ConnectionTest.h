#pragma once

#include <functional>
#include <memory>

#include <QTimer>
#include <QWidget>

#include "device/Connect.h"
#include "fleet/LiveState.h"

namespace AdvancedControl {
class AddressHold;
class Fleet;
class SearchDriver;
}  // namespace AdvancedControl
class QLabel;
class QPushButton;

/// A button that asks the projector at an address for its identity and its state, and shows the
/// answer.
class ConnectionTest : public QWidget {
  Q_OBJECT

 public:
  /// `address` returns the address that is typed now.
  explicit ConnectionTest(std::function<ProjectorAddress()> address, QWidget* parent = nullptr);
  ~ConnectionTest() override;

  /// Forgets the result: the address has changed.
  void Clear();

 Q_SIGNALS:
  /// There is another result, which may need more room, or none.
  void Told();

 private:
  void Begin();
  void Look();
  void AskWho();
  void Show(const QStringList& who);
  void Tell(const QString& result);

  const std::function<ProjectorAddress()> address_;
  QPushButton* button_;
  QLabel* result_;
  QTimer looking_;
  std::unique_ptr<AddressHold> hold_;      // null while no state is asked for
  std::unique_ptr<Fleet> fleet_;           // null until the address is held
  std::unique_ptr<SearchDriver> inquiry_;  // null while no identity is asked for
  ProjectorAddress asked_;
  LiveState state_;  // of what answered
};

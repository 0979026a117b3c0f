#pragma once

#include <optional>
#include <vector>

#include <QLineEdit>

#include "Namespace.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

/// A setting or pop-up with its tab, as the search shows it: "Brightness — Picture".
QString WhatAndWhere(const QString& what, const QString& where);

/// A line that finds a row while the user types its caption. Enter goes to the row; Esc or a click
/// elsewhere ends the search. User-interface thread only.
class FindLine final : public QLineEdit {
  Q_OBJECT

 public:
  struct Place {
    QString caption{};
    QString where{};                   ///< Caption of its tab, after that of its pop-up.
    int tab = 0;                       ///< Index of the tab.
    int control = 0;                   ///< Number of the row's control.
    std::optional<PagePopUp> popUp{};  ///< The pop-up with the row, if it is not on the page.
  };

  /// Hidden until `Start`. `parent` must be shown when the line is made.
  explicit FindLine(QWidget* parent);

  /// Shows the empty line for a search in `places`.
  void Start(std::vector<Place> places);
  /// Hides the line, and finds nothing any more.
  void Stop();

 Q_SIGNALS:
  void Found(const FindLine::Place& place);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Choose(const QModelIndex& completion);

  std::vector<Place> places_;
};

}  // namespace AdvancedControl

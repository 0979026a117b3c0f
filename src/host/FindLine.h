#pragma once

#include <optional>
#include <vector>

#include <QLineEdit>

#include "Namespace.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

/// A setting or pop-up with its tab, as the search shows it: "Brightness — Picture".
QString WhatAndWhere(const QString& what, const QString& where);

/// A line that finds a row by its caption while a person types it. Enter goes there, Esc or a click
/// elsewhere ends the search.
class FindLine final : public QLineEdit {
  Q_OBJECT

 public:
  struct Place {
    QString caption{};
    QString where{};                   ///< Caption of its tab, behind that of its pop-up.
    int tab = 0;                       ///< Index of the tab,
    int control = 0;                   ///< and number of the control, by which the row is found,
    std::optional<PagePopUp> popUp{};  ///< which is in a pop-up.
  };

  /// Hidden until `Start`.
  explicit FindLine(QWidget* parent);

  /// Shows the line, empty, over these rows.
  void Start(std::vector<Place> places);

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

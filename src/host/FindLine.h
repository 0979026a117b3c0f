#pragma once

#include <vector>

#include <QLineEdit>

/// A line that finds a row by its caption while a person types it. Enter goes there, Esc or a click
/// elsewhere ends the search.
class FindLine final : public QLineEdit {
  Q_OBJECT

 public:
  struct Place {
    QString caption;
    QString tabCaption;
    int tab;      ///< Index of the tab,
    int control;  ///< and number of the control, by which the row is found.
  };

  /// Hidden until `Start`.
  explicit FindLine(QWidget* parent);

  /// Shows the line, empty, over these rows.
  void Start(std::vector<Place> places);

 Q_SIGNALS:
  void Found(int tab, int control);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Choose(const QModelIndex& completion);

  std::vector<Place> places_;
};

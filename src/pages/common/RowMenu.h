#pragma once

#include <optional>

#include <QMenu>

/// What a person can do with a row beside operating its controls: see what it takes and what it
/// was, put that back, type a number, and copy. A change moves the row's own control as a hand
/// would, so that all that follows is the same.
class RowMenu final : public QMenu {
  Q_OBJECT

 public:
  /// A position is a slider's number, the place of a list's entry, or whether a box is checked.
  struct Row {
    QWidget* control;  ///< List, slider or check box; of any other the value is only told.
    QString caption;
    QString value;              ///< As it is shown; may be empty.
    QString note;               ///< The numbers it takes, or why it is grey; may be empty.
    std::optional<int> opened;  ///< Its position when the dialog was opened.
  };

  /// `parent` owns the menu and outlives the row's control. The menu ends when it is hidden.
  RowMenu(const Row& row, QWidget* parent);

 Q_SIGNALS:
  void PutBack();

 private:
  void Tell(const QString& text);
};

/// Moves a row's control to a position as a user does; nothing where it stands there, where it is
/// grey, or without such a position.
void OperateTo(QWidget& control, int position);

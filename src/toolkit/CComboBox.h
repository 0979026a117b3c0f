#pragma once

#include <optional>

#include <QComboBox>

#include "AdvancedControlExport.h"

/// A drop-down list. `activated` reports a choice of the user, also of the entry that is selected
/// already; selecting by program reports nothing. The wheel is taken only with the focus. Assistive
/// technologies meet it by its caption's name, and choose as a hand does.
class ADVANCED_CONTROL_EXPORT CComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit CComboBox(QWidget* parent = nullptr);

  /// Adds an entry that stands for its own position. Adding selects nothing: a list shows no value
  /// before one is known.
  void Add(const QString& text) { Add(text, count()); }
  /// Adds an entry that stands for `value`.
  void Add(const QString& text, int value);

  /// Selects a position; one outside the list leaves the list without a selection.
  void Select(int position);

  /// Selects the first entry that stands for `value`. False, and nothing changes, without one.
  bool SelectValue(int value);

  /// Chooses a position as a user does, and reports it; nothing for one outside the list.
  void Pick(int position);

  /// What the selected entry stands for; nothing without a selection.
  std::optional<int> SelectedValue() const;

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override;
  void wheelEvent(QWheelEvent* event) override;
};

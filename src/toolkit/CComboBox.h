#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QComboBox>

#include "AdvancedControlExport.h"

/// A drop-down list. `activated` reports every choice of the user, even of the selected entry;
/// selecting by program reports nothing. While it is closed, the wheel changes it only if it has
/// the focus and Ctrl is held. It is as wide as its longest entry, but not wider than reads well;
/// opened, it shows every entry whole. Assistive technologies find it by its caption, and choose as
/// a user does. User-interface thread only.
class ADVANCED_CONTROL_EXPORT CComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit CComboBox(QWidget* parent = nullptr);

  /// Adds an entry whose value is its position. Adding selects nothing: a list shows no value until
  /// one is known.
  void Add(const QString& text) { Add(text, count()); }
  /// Adds an entry with a value.
  void Add(const QString& text, int value);

  /// Replaces the entries with these texts and values; faster than adding each one.
  void Fill(const std::vector<std::pair<QString, int>>& entries);

  /// Selects the entry at a position, or none if the position is outside the list.
  void Select(int position);

  /// Selects the first entry with `value`. If there is none, returns false and changes nothing.
  bool SelectValue(int value);

  /// Chooses the entry at a position as a user does, and reports it. Does nothing for a position
  /// outside the list.
  void Pick(int position);

  /// Measures the entries again; to be called when they have changed after the list was shown.
  void UpdateWidth();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void showPopup() override;

  /// The value of the selected entry; nothing without a selection.
  std::optional<int> SelectedValue() const;

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  mutable int wholeWidth_ = 0;  // shows every entry whole; 0 before it is measured
};

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "Namespace.h"

namespace AdvancedControl {

/// The kind of a template's control.
enum class ControlKind : std::uint8_t {
  None,
  Label,  ///< Caption of a row; names the row's value controls for a screen reader.
  Colon,  ///< The ":" after a caption.
  Text,   ///< Static text that shows a value or captions a part of a row ("V", "H").
  Minus,  ///< Small "-" button left of a slider or field.
  Slider,
  Plus,   ///< Small "+" button right of a slider or field.
  Field,  ///< Read-only number field.
  Combo,
  Button,  ///< Command button ("Execute", "Custom...").
  Arrow,   ///< Small button of an arrow pad.
  Check,
  Tab,
  Close,  ///< Ends the dialog, by itself unless the dialog has a handler for it.
};

/// One control of a row.
struct ControlTemplate {
  ControlKind kind = ControlKind::None;
  int id = 0;                ///< Number by which `CDialog::GetDlgItem` finds it.
  const char* caption = "";  ///< UTF-8; "number;default text" if it is localizable.
  std::span<const char* const> entries = {};  ///< Fixed list of a combo.
};

/// The place of a row.
enum class RowPlace : std::uint8_t {
  Left,    ///< In the left column, packed from the top.
  Right,   ///< In the right column, packed from the top.
  Bottom,  ///< In the left column, at the bottom of the dialog.
};

/// One row: the controls from left to right. A row without a caption continues the one above.
struct RowTemplate {
  static constexpr std::size_t kMaxControls = 9;

  RowPlace place = RowPlace::Left;
  std::array<ControlTemplate, kMaxControls> controls{};  ///< Those that it has, then `None`.

  /// The controls that it has.
  std::span<const ControlTemplate> Present() const {
    std::size_t count = 0;
    while (count < kMaxControls && controls[count].kind != ControlKind::None) ++count;
    return {controls.data(), count};
  }
};

/// A numbered dialog. It has no coordinates: all present rows have the same pitch, which is the
/// ruler's height or more if the font needs it, and absent rows take no space. Templates are
/// constant and may be read from any thread.
struct DialogTemplate {
  int number = 0;
  const char* caption = "";  ///< Title, empty for a page.
  int width = 0;             ///< In horizontal dialog units (a quarter of a character's width).
  int height = 0;            ///< In vertical dialog units (an eighth of a character's height).
  int rulerHeight = 20;      ///< In vertical dialog units.
  std::span<const RowTemplate> rows = {};
};

/// Builders that let a template have one line per row.
namespace tmpl {

constexpr ControlTemplate Label(int id, const char* caption) {
  return {ControlKind::Label, id, caption, {}};
}
constexpr ControlTemplate Colon(int id) { return {ControlKind::Colon, id, ":", {}}; }
constexpr ControlTemplate Text(int id, const char* caption = "") {
  return {ControlKind::Text, id, caption, {}};
}
constexpr ControlTemplate Minus(int id) { return {ControlKind::Minus, id, "-", {}}; }
constexpr ControlTemplate Slider(int id) { return {ControlKind::Slider, id, "", {}}; }
constexpr ControlTemplate Plus(int id) { return {ControlKind::Plus, id, "+", {}}; }
constexpr ControlTemplate Field(int id) { return {ControlKind::Field, id, "", {}}; }
constexpr ControlTemplate Combo(int id, std::span<const char* const> entries = {}) {
  return {ControlKind::Combo, id, "", entries};
}
constexpr ControlTemplate Button(int id, const char* caption) {
  return {ControlKind::Button, id, caption, {}};
}
constexpr ControlTemplate Arrow(int id, const char* caption) {
  return {ControlKind::Arrow, id, caption, {}};
}
constexpr ControlTemplate Check(int id, const char* caption) {
  return {ControlKind::Check, id, caption, {}};
}
constexpr ControlTemplate Tab(int id) { return {ControlKind::Tab, id, "", {}}; }
constexpr ControlTemplate Close(int id, const char* caption) {
  return {ControlKind::Close, id, caption, {}};
}

template <class... Controls>
constexpr RowTemplate Row(RowPlace place, const Controls&... controls) {
  static_assert(sizeof...(controls) <= RowTemplate::kMaxControls);
  return {place, {controls...}};
}

/// The control numbers of a slider row: − button, slider, + button and number field, after the
/// caption.
struct SliderIds {
  int minus, slider, plus, field;
};
template <class... More>
constexpr RowTemplate SliderRow(RowPlace place, const ControlTemplate& label, int colon,
                                const SliderIds& ids, const More&... more) {
  return Row(place, label, Colon(colon), Minus(ids.minus), Slider(ids.slider), Plus(ids.plus),
             Field(ids.field), more...);
}

}  // namespace tmpl

}  // namespace AdvancedControl

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "AdvancedControlExport.h"

inline namespace AdvancedControl {

/// Every page class, in the order in which the dialog holds them.
enum class PageId : std::uint8_t {
  Status,
  Main,
  Main2,
  Picture1,
  Picture12,
  Picture2,
  Picture22,
  Input,
  Input2,
  Auto,
  Auto2,
  Option,
  Option2,
  Screen,
  Other,
  Image,
  Image4,
  Video,
  Input4,
  Screen4,
  Setup4,
  Option4,
  Other4,
  Pic,
  PictureType5,
  InputType5,
  SetupType5,
  AudioType5,
  Option5,
  Setup,
  Input3,
  Option3,
  Count,
};
inline constexpr std::size_t kPageCount = static_cast<std::size_t>(PageId::Count);

/// One tab: the catalog number of its caption and the page behind it.
struct PageTab {
  int caption;
  PageId page;
};

/// The pages that a page set creates after the status page, in order; none for a dialog type
/// outside 1..5. Some get no tab on some models.
ADVANCED_CONTROL_EXPORT std::span<const PageId> PagesOf(int dialogType);

/// The tabs that a model shows after the status tab, in order.
ADVANCED_CONTROL_EXPORT std::span<const PageTab> TabsOf(int dialogType, int modelCode);

}  // namespace AdvancedControl

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"

namespace AdvancedControl {

/// Every page.
enum class PageId : std::uint8_t {
#define PAGE(identifier, number, pageClass) identifier,
#include "settings/Pages.def"
  Count,
};
inline constexpr std::size_t kPageCount = static_cast<std::size_t>(PageId::Count);

/// One tab: the catalog number of its caption and its page.
struct PageTab {
  int caption;
  PageId page;
};

/// The pages of a page set after the status page, in order; none for a dialog type outside 1..5. A
/// page may have no tab on some models. Any thread.
PROJECTOR_SETTINGS_EXPORT std::span<const PageId> PagesOf(int dialogType);

/// The tabs that a model shows after the status tab, in order. Any thread.
PROJECTOR_SETTINGS_EXPORT std::span<const PageTab> TabsOf(int dialogType, int modelCode);

}  // namespace AdvancedControl

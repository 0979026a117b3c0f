#include "i18n/Catalog.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/ResourceModule.h"

namespace AdvancedControl {

namespace {

/// Sets up the library when it is loaded, and cleans up when it is unloaded. Without a catalog the
/// dialogs show their template texts.
class LibraryAttachment {
 public:
  LibraryAttachment() {
    LoadCatalog();
    ResourceChain::Register(AdvancedControlResources());
  }
  ~LibraryAttachment() {
    ResourceChain::Unregister(AdvancedControlResources());
    ReleaseCatalog();
  }
  LibraryAttachment(const LibraryAttachment&) = delete;
  LibraryAttachment& operator=(const LibraryAttachment&) = delete;
};

const LibraryAttachment attachment;

}  // namespace

}  // namespace AdvancedControl

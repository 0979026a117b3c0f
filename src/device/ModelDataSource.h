#pragma once

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelData.h"

namespace AdvancedControl {

/// The holder of the model data that pages and pop-ups read: the dialog that they belong to.
/// User-interface thread only.
class PROJECTOR_COMMON_EXPORT ModelDataSource {
 public:
  virtual ~ModelDataSource() = default;

  /// Owned by the source. Does not change during the lifetime of its pages.
  virtual const ModelData& Model() const = 0;
};

}  // namespace AdvancedControl

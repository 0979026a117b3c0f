#pragma once

#include "ProjectorCommonExport.h"
#include "device/ModelData.h"

/// Whoever holds the model data that the pages and pop-ups read: the dialog they belong to.
class PROJECTOR_COMMON_EXPORT ModelDataSource {
 public:
  virtual ~ModelDataSource() = default;

  /// Owned by the source; unchanged while its pages live.
  virtual const ModelData& Model() const = 0;
};

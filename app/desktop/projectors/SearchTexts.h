#pragma once

#include <memory>
#include <unordered_map>

#include <QString>
#include <QStringList>

#include "app/desktop/projectors/ProjectorRow.h"

/// The captions of a model's tabs, in tab order, in the catalog's language.
QStringList TabNames(const CModelInfo2& model);

/// The texts of a projector that the search looks through, in lower case.
class SearchTexts {
 public:
  /// Name, model, tags, address and notes.
  static QString OfProjector(const FleetProfile& profile);

  /// The names of the tabs and settings of a model; worked out once for each.
  const QString& OfModel(const std::shared_ptr<const ProfileModel>& model);
  /// Forgets the models that nobody else has any more.
  void ForgetUnused();

 private:
  std::unordered_map<std::shared_ptr<const ProfileModel>, QString> models_;
};

#pragma once

#include <map>
#include <memory>

/// Something made of each model, kept as long as somebody else has the model. The models of a file
/// that is read again are new ones.
template <typename Model, typename Made>
class ByModel {
 public:
  /// Calls `make` for a model that has nothing yet.
  Made& Of(const std::shared_ptr<const Model>& model, const auto& make) {
    auto found = made_.find(model);
    if (found == made_.end()) {
      std::erase_if(made_, [](const auto& one) { return one.first.expired(); });
      found = made_.emplace(model, make()).first;
    }
    return found->second;
  }

 private:
  std::map<std::weak_ptr<const Model>, Made, std::owner_less<>> made_;
};

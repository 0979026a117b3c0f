#include "app/acctl/Selection.h"

#include <algorithm>
#include <fnmatch.h>
#include <unordered_set>

#include "app/acctl/Message.h"

namespace {

bool Fits(std::string_view text, std::string_view pattern) {
  return IsLike(text, {std::string(pattern)});
}

bool Fits(const FleetProfile& profile, std::string_view term) {
  constexpr std::string_view kModel = "model=";
  if (term.starts_with('@')) {
    return std::ranges::any_of(
        profile.tags, [&term](const std::string& tag) { return Fits(tag, term.substr(1)); });
  }
  if (term.starts_with(kModel)) {
    return Fits(profile.model->info.ModelName, term.substr(kModel.size()));
  }
  return Fits(profile.name, term);
}

std::string_view Trimmed(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

class Selector {
 public:
  explicit Selector(const std::vector<FleetProfile>& profiles) : profiles_(profiles) {}

  void TakeWord(std::string_view word) {
    if (TakeName(word)) return;
    for (bool isLast = false; !isLast;) {
      const auto comma = word.find(',');
      isLast = comma == std::string_view::npos;
      TakeTerm(Trimmed(word.substr(0, comma)));
      if (!isLast) word.remove_prefix(comma + 1);
    }
  }

  Selection Take() {
    if (!selection_.error.empty()) return selection_;
    if (!hasTerms_) {
      for (const FleetProfile& profile : profiles_) Add(profile);
    }
    std::erase_if(selection_.projectors, [this](const FleetProfile* profile) {
      return std::ranges::any_of(
          excluded_, [profile](const std::string& term) { return Fits(*profile, term); });
    });
    return std::move(selection_);
  }

 private:
  bool TakeName(std::string_view name) {
    const auto exact = std::ranges::find(profiles_, name, &FleetProfile::name);
    if (exact == profiles_.end()) return false;
    hasTerms_ = true;
    Add(*exact);
    return true;
  }

  void TakeTerm(std::string_view term) {
    if (TakeName(term)) return;
    const bool isExcluded = term.starts_with('!');
    if (isExcluded) {
      term.remove_prefix(1);
      excluded_.emplace_back(term);
    }
    hasTerms_ = hasTerms_ || !isExcluded;
    bool found = false;
    for (const FleetProfile& profile : profiles_) {
      if (!Fits(profile, term)) continue;
      if (!isExcluded) Add(profile);
      found = true;
    }
    if (!found && selection_.error.empty()) {
      selection_.error =
          Message(Acctl::tr("there is no projector '%1'; acctl list shows all"), term);
    }
  }

  void Add(const FleetProfile& profile) {
    if (taken_.insert(&profile).second) selection_.projectors.push_back(&profile);
  }

  const std::vector<FleetProfile>& profiles_;
  Selection selection_;
  std::unordered_set<const FleetProfile*> taken_;
  std::vector<std::string> excluded_;
  bool hasTerms_ = false;
};

}  // namespace

bool IsLike(std::string_view name, const std::vector<std::string>& patterns) {
  const std::string text(name);
  return patterns.empty() || std::ranges::any_of(patterns, [&text](const std::string& pattern) {
           return text == pattern || fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
         });
}

Selection Select(const std::vector<std::string>& words, const std::vector<FleetProfile>& profiles) {
  Selector selector(profiles);
  for (const std::string& word : words) selector.TakeWord(word);
  return selector.Take();
}

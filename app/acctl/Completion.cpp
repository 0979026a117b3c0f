#include "app/acctl/Completion.h"

#include <algorithm>
#include <set>

#include "app/acctl/Aliases.h"
#include "app/acctl/OptionTable.h"
#include "app/acctl/RunFiles.h"
#include "app/acctl/Selection.h"
#include "app/acctl/Uses.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

constexpr const char* kFiles = "<files>";
constexpr const char* kFolders = "<folders>";

class Completer {
 public:
  Completer(const std::vector<std::string>& words, const std::vector<FleetProfile>& profiles,
            ModelCache& models, const ValueTexts& texts)
      : typed_(words.empty() ? "" : words.back()),
        profiles_(profiles),
        models_(models),
        texts_(texts) {
    for (std::size_t i = 0; i + 1 < words.size(); ++i) TakeWord(words[i]);
  }

  std::string Lines() {
    if (valueOf_ != nullptr) {
      OfferOptionValue(*valueOf_);
    } else if (typed_.starts_with('-')) {
      OfferOptions();
    } else if (plain_.empty()) {
      for (const CommandForm& form : CommandForms()) {
        if (!form.summary.empty()) Offer(std::string(form.name));
      }
    } else if (const CommandForm* const form = FindCommand(plain_.front())) {
      OfferWords(*form);
    }
    return lines_;
  }

 private:
  void TakeWord(const std::string& word) {
    if (valueOf_ != nullptr) {
      if (valueOf_->name == "for") {
        if (const CommandForm* const form = FindCommand(word)) usedBy_ = form->command;
      }
      valueOf_ = nullptr;
    } else if (word == "-o" || word.starts_with("--")) {
      const OptionForm* const option = FindOption(word == "-o" ? ShortName() : word.substr(2));
      if (option != nullptr && !option->value.empty()) valueOf_ = option;
    } else {
      plain_.push_back(word);
    }
  }

  std::string ShortName() const {
    return !plain_.empty() && plain_.front() == "save" ? "folder" : "format";
  }

  void Offer(const std::string& line) {
    const bool isMark = line == kFiles || line == kFolders;
    if (!isMark && !line.starts_with(typed_)) return;
    if (offered_.insert(line).second) lines_ += line + '\n';
  }

  void OfferOptions() {
    const CommandForm* const form = plain_.empty() ? nullptr : FindCommand(plain_.front());
    for (const OptionForm& option : OptionForms()) {
      if (form == nullptr || option.IsOf(form->command)) Offer("--" + std::string(option.name));
    }
  }

  void OfferOptionValue(const OptionForm& option) {
    if (option.name == "format") {
      for (const char* format : {"text", "json", "jsonl", "tsv", "value"}) Offer(format);
    } else if (option.name == "for") {
      for (const char* command : {"get", "set", "reset", "watch"}) Offer(command);
    } else if (option.name == "language") {
      for (const CatalogLanguage& language : CatalogLanguages(CatalogFolders()))
        Offer(language.tag);
    } else if (option.name == "where" || option.name == "until") {
      for (const Alias& alias : Aliases()) Offer(std::string(alias.name) + '=');
    } else if (option.value == "FILE") {
      Offer(kFiles);
    } else if (option.value == "DIR") {
      Offer(kFolders);
    }
  }

  void OfferWords(const CommandForm& form) {
    const std::size_t position = plain_.size();  // the command is the first
    switch (form.command) {
      case Command::Help:
        for (const CommandForm& other : CommandForms()) Offer(std::string(other.name));
        return;
      case Command::Explain:
        for (const FleetProfile& profile : profiles_) OfferKeys(models_.Of(profile), kListed);
        return;
      case Command::Models:
        for (const FleetProfile& profile : profiles_) Offer(profile.model->info.ModelName);
        return;
      case Command::Import:
        return Offer(kFiles);
      case Command::Undo:
        if (position > 1) return OfferProjectors();
        Offer(kLastRun);
        return Offer(kFiles);
      default:
        break;
    }
    const bool isFile =
        (form.words == Words::FileProjectors && position == 1) ||
        (position == 2 && (form.command == Command::Save || form.command == Command::Diff));
    if (isFile) {
      Offer(kFiles);
    } else if (form.words == Words::ProjectorWords && position > 1) {
      OfferSettings(form.command == Command::Settings ? usedBy_ : form.command);
    } else if (form.words != Words::None) {
      OfferProjectors();
    }
  }

  void OfferProjectors() {
    for (const FleetProfile& profile : profiles_) {
      Offer(profile.name);
      for (const std::string& tag : profile.tags) Offer('@' + tag);
    }
  }

  void OfferSettings(Command command) {
    const Selection selection = Select({plain_[1]}, profiles_);
    const auto equals = typed_.find('=');
    std::set<const ModelSettings*> seen;
    for (const FleetProfile* profile : selection.projectors) {
      const ModelSettings& model = models_.Of(*profile);
      if (!seen.insert(&model).second) continue;
      const std::string key = KeyWithoutValue();
      if (command == Command::Set && equals != std::string::npos) {
        OfferValues(model, typed_.substr(0, equals), typed_.substr(0, equals + 1));
      } else if (command == Command::Set && !key.empty()) {
        OfferValues(model, key, "");
      } else {
        OfferKeys(model, UseBy(command));
      }
    }
  }

  /// The last key of `set`, if its value is yet to come; else empty.
  std::string KeyWithoutValue() const {
    std::string key;
    for (std::size_t i = 2; i < plain_.size(); ++i) {
      const bool isComplete = !key.empty() || plain_[i].find('=') != std::string::npos;
      key = isComplete ? std::string() : plain_[i];
    }
    return key;
  }

  void OfferKeys(const ModelSettings& model, const Use& use) {
    for (const ModelSetting& setting : model.All()) {
      if (!use.isPossible(setting)) continue;
      Offer(std::string(setting.key));
      const std::string_view alias = AliasOf(setting.key);
      const bool isMeant = FindSetting(model, alias, use.isPossible) == &setting;
      if (isMeant && use.isForPatterns(setting)) Offer(std::string(alias));
    }
  }

  void OfferValues(const ModelSettings& model, const std::string& key, const std::string& prefix) {
    const ModelSetting* const setting = FindSetting(model, key, kSet.isPossible);
    if (setting == nullptr) return;
    for (const ListEntry& entry : setting->entries) {
      if (setting->Allows(entry.value)) Offer(prefix + texts_.Code(*setting, entry.value));
    }
  }

  const std::string typed_;
  const std::vector<FleetProfile>& profiles_;
  ModelCache& models_;
  const ValueTexts& texts_;
  std::vector<std::string> plain_;  // words that are no options
  const OptionForm* valueOf_ = nullptr;
  Command usedBy_ = Command::Settings;
  std::set<std::string> offered_;
  std::string lines_;
};

}  // namespace

std::string Completions(const std::vector<std::string>& words,
                        const std::vector<FleetProfile>& profiles, ModelCache& models,
                        const ValueTexts& texts) {
  return Completer(words, profiles, models, texts).Lines();
}

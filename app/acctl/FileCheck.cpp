#include "app/acctl/FileCheck.h"

#include <algorithm>
#include <numeric>

#include "app/acctl/Message.h"
#include "app/acctl/ModelCache.h"
#include "app/acctl/Selection.h"
#include "app/acctl/Uses.h"
#include "fleet/JsonLines.h"

namespace {

using Kind = ModelSetting::Kind;

/// How many letters must be changed, added or removed to turn one word into the other.
std::size_t Distance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= one.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const std::size_t changed = diagonal + (one[i - 1] == other[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({changed, row[j - 1] + 1, diagonal + 1});
    }
  }
  return row.back();
}

/// "no model has such a setting; did you mean picture.tint?", or how to list all keys.
std::string NoSuchKey(const std::string& key, const std::vector<std::string_view>& keys) {
  constexpr std::size_t kFar = 4;
  const auto distance = [&key](std::string_view known) { return Distance(key, known); };
  const auto nearest = std::ranges::min_element(keys, {}, distance);
  if (nearest == keys.end() || distance(*nearest) >= kFar) {
    return Message(Acctl::tr("no model has such a setting; acctl settings lists all keys"));
  }
  return Message(Acctl::tr("no model has such a setting; did you mean %1?"), *nearest);
}

/// The values that a file may have for a setting: "97 to 159, shown as -31 to 31", "0 (Off), 1
/// (Theater)".
std::string Possible(const SettingTexts& texts, const ModelSetting& setting) {
  if (setting.kind == Kind::Number) {
    const Range range = setting.range.value_or(Range{0, 0xFFFF});
    const bool isShownSo = setting.bias == 0 || !setting.range;
    //: A range of numbers.
    return isShownSo ? Message(Acctl::tr("%1 to %2"), range.minimum, range.maximum)
                     : Message(Acctl::tr("%1 to %2, shown as %3"), range.minimum, range.maximum,
                               texts.Values(setting));
  }
  std::string values;
  for (const ListEntry& entry : setting.entries) {
    if (!setting.Allows(entry.value)) continue;
    values.append(values.empty() ? "" : ", ").append(std::to_string(entry.value));
    values.append(" (").append(texts.Entry(setting, entry)).append(")");
  }
  return values;
}

/// The profile of the projector that the file was saved from, or else one of its model; null if no
/// profile has that model.
const FleetProfile* OwnProfile(const Snapshot& file, const std::vector<FleetProfile>& profiles) {
  const FleetProfile* found = nullptr;
  int best = 0;
  for (const FleetProfile& profile : profiles) {
    const CModelInfo2& model = profile.model->info;
    if (model.DialogType != file.dialogType || model.ModelCode != file.modelCode) continue;
    const int likeness = profile.name == file.projector ? 3 : model.ModelName == file.model ? 2 : 1;
    if (likeness > best) found = &profile;
    best = std::max(best, likeness);
  }
  return found;
}

/// A setting of the file, as the projector's model and the file's own model define it. Models of
/// the same kind may have other inputs.
class Entry {
 public:
  Entry(const SettingTexts& texts, const SavedSetting& saved, const ModelSettings& model,
        const ModelSettings& own)
      : texts_(texts), saved_(saved) {
    Add(model);
    if (&own != &model) Add(own);
  }

  bool IsKnown() const { return !forms_.empty(); }

  std::string SourceMistake() const {
    const auto has = [this](const Form& form) {
      return form.model->HasSource(*form.setting, *saved_.source);
    };
    if (!saved_.source || !IsKnown() || std::ranges::any_of(forms_, has)) return {};
    const auto [model, setting] = forms_.front();
    if (setting->of == OfSource::None) {
      return Message(Acctl::tr("source %1: this is not kept for each source"), *saved_.source);
    }
    return Message(Acctl::tr("source %1 does not exist; there are %2"), *saved_.source,
                   Possible(texts_, model->Input()));
  }

  std::string ValueMistake() const {
    const auto passes = [this](const Form& form) { return Passes(form); };
    if (!IsKnown() || isOpen_ || std::ranges::any_of(forms_, passes)) return {};
    return Message(Acctl::tr("value %1 is not possible; possible are %2"), saved_.value,
                   Possible(texts_, *forms_.front().setting));
  }

  std::string TextMistake(InputNames inputs) const {
    const auto isSo = [this, inputs](const Form& form) {
      const auto& entries = form.setting->entries;
      const auto entry = std::ranges::find(entries, saved_.value, &ListEntry::value);
      // An input may have been renamed since, but the name of another input is a mistake.
      const bool isName = entry != entries.end() && !entry->text;
      const bool isOfOther = std::ranges::any_of(entries, [&](const ListEntry& other) {
        return texts_.IsShownAs(*form.setting, other.value, saved_.text);
      });
      return (isName && !isOfOther && inputs == InputNames::OfProjector) ||
             texts_.IsShownAs(*form.setting, saved_.value, saved_.text);
    };
    const bool isChecked = !saved_.text.empty() && IsKnown() && !isOpen_;
    if (!isChecked || std::ranges::any_of(forms_, isSo)) return {};
    const ModelSetting& setting = *forms_.front().setting;
    return Message(
        Acctl::tr("text \"%1\" is not that of value %2, which is \"%3\"; change both, or "
                  "remove the text"),
        saved_.text, saved_.value, texts_.Value(setting, saved_.value));
  }

 private:
  struct Form {
    const ModelSettings* model;
    const ModelSetting* setting;
  };

  void Add(const ModelSettings& model) {
    const ModelSetting* const setting = model.Find(saved_.key);
    if (setting == nullptr) return;
    if (setting->Restorable()) forms_.push_back({&model, setting});
    isOpen_ = isOpen_ || (setting->SelectsInput() && setting->entries.empty());
  }
  // A projector may report a value that its list lacks. It is then saved with its number as text.
  bool Passes(const Form& form) const {
    const ModelSetting& setting = *form.setting;
    if (setting.Allows(saved_.value)) return true;
    return setting.kind == Kind::Choice && saved_.text == texts_.Value(setting, saved_.value);
  }

  const SettingTexts& texts_;
  const SavedSetting& saved_;
  std::vector<Form> forms_;
  bool isOpen_ = false;  ///< Only one of the projectors knows the values.
};

}  // namespace

std::vector<std::string> MistakesIn(const Work& work, const SettingsFileContents& contents,
                                    const std::string& projector, const ModelSettings& model,
                                    InputNames inputs) {
  constexpr std::size_t kMost = 20;
  const Snapshot& file = contents.snapshot;
  const FleetProfile* const profile = OwnProfile(file, work.profiles);
  const bool isOwn = profile != nullptr && profile->name == projector;
  const auto own = profile != nullptr && !isOwn ? work.models->Share(*profile) : nullptr;
  std::vector<std::string> mistakes;
  const JsonLines lines(contents.text);
  const auto add = [&](const SavedSetting& saved, const QString& path, const std::string& what) {
    if (what.empty() || mistakes.size() >= kMost) return !what.empty();
    const std::string place =
        contents.name.toStdString() + ':' + std::to_string(lines.LineOf(path)) + ": ";
    mistakes.push_back(std::string(place).append(saved.key).append(": ").append(what));
    return true;
  };
  const std::vector<std::string_view> keys = AllKeys();
  const auto check = [&](const SavedSetting& saved, const QString& path) {
    if (std::ranges::find(keys, saved.key) == keys.end()) {
      add(saved, path + ".key", NoSuchKey(saved.key, keys));
      return;
    }
    // What the file's model allows is unknown if there is no such model.
    if (profile == nullptr) return;
    const Entry entry(work.texts.Shown(), saved, model, own ? *own : model);
    add(saved, path + ".source", entry.SourceMistake());
    if (!add(saved, path + ".value", entry.ValueMistake())) {
      add(saved, path + ".text", entry.TextMistake(inputs));
    }
  };
  for (std::size_t i = 0; i < file.beforehand.size(); ++i) {
    check(file.beforehand[i], QStringLiteral("beforehand[%1]").arg(i));
  }
  for (std::size_t i = 0; i < file.settings.size(); ++i) {
    if (!IsLike(file.settings[i].key, work.arguments.only)) continue;
    check(file.settings[i], QStringLiteral("settings[%1]").arg(i));
  }
  return mistakes;
}

Report CheckFile(const Work& work, const ProjectorAccess& projector) {
  Report report;
  if (work.arguments.lenient || !projector.ReportsInputs()) return report;
  for (std::string& mistake : MistakesIn(work, work.files.Of(projector.Name()), projector.Name(),
                                         projector.Settings(), InputNames::OfProjector)) {
    report.Add({.code = ProblemCode::WrongFile,
                .text = std::move(mistake),
                .exitCode = ExitCode::WrongUse});
  }
  return report;
}

#include "fleet/ProfileFile.h"

#include <algorithm>
#include <fcntl.h>
#include <map>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <utility>

#include <QFile>
#include <QJsonDocument>

#include "device/ModelDataIntake.h"
#include "fleet/JsonLines.h"
#include "fleet/ProfileValues.h"
#include "fleet/WholeFile.h"

namespace AdvancedControl {

namespace {

constexpr int kMaximumProjectors = 100'000;
constexpr int kMaximumFamilies = 1000;
/// For so many projectors with 50 values each.
constexpr JsonLines::Limits kLimits{.bytes = qsizetype{64} << 20, .values = 5'000'000};
constexpr qint64 kPiece = 65536;
constexpr int kMaximumLikes = 16;  // families that are like one another in a row

/// A model under construction, with the keys that it has been given.
struct Draft {
  ProfileModel model;
  FleetProfile profile;  ///< What families contain besides the model.
  QStringList keys;
  int likes = 0;  ///< Families below it.
};

class FamilyTree {
 public:
  explicit FamilyTree(const QJsonObject& families) : families_(families) {
    if (families.size() > kMaximumFamilies) {
      throw WrongValue{"families", ProfileFile::tr("has %1 families; at most %2 are possible")
                                       .arg(families.size())
                                       .arg(kMaximumFamilies)};
    }
    for (const QString& name : families.keys()) Resolve(name, QString(), 0);
  }

  /// The draft of a family or an entry with these settings, which take precedence over inherited
  /// ones.
  Draft Derive(const QJsonObject& settings, const QString& path, int above = 0) {
    Draft draft;
    if (settings.contains("like")) {
      const QString likePath = At(path, "like");
      draft = Resolve(Text(String(settings["like"], likePath)), likePath, above + 1);
      // Checked on the way down too: the chain may be too long to go to its end.
      if (++draft.likes + above > kMaximumLikes) ThrowTooManyLikes(likePath);
    }
    ApplyModel(settings, path, draft.model);
    ApplyProfile(settings, path, draft.profile);
    draft.keys += settings.keys();
    return draft;
  }

 private:
  [[noreturn]] static void ThrowTooManyLikes(const QString& path) {
    throw WrongValue{path,
                     ProfileFile::tr("leads through more than %1 families").arg(kMaximumLikes)};
  }

  // `above` is the number of families and entries that wait for this one.
  const Draft& Resolve(const QString& name, const QString& askedAt, int above) {
    if (above > kMaximumLikes) ThrowTooManyLikes(askedAt);
    if (const auto known = drafts_.find(name); known != drafts_.end()) {
      if (known->second.has_value()) return *known->second;
      throw WrongValue{askedAt, ProfileFile::tr("makes \"%1\" like itself").arg(name)};
    }
    if (!families_.contains(name)) {
      throw WrongValue{askedAt, ProfileFile::tr("there is no family \"%1\"").arg(name)};
    }
    drafts_[name] = std::nullopt;
    const QString path = At("families", name);
    const QJsonObject settings = Object(families_[name], path);
    CheckKeys(settings, path, kFamilyKeys);
    return drafts_[name].emplace(Derive(settings, path, above));
  }

  const QJsonObject families_;
  std::map<QString, std::optional<Draft>> drafts_;  // without a draft while it is being derived
};

/// The profiles of a file, of which those that are described alike share a model.
class ProfileReader {
 public:
  explicit ProfileReader(const QJsonObject& families) : families_(families) {}

  FleetProfile Read(const QJsonObject& entry, const QString& path) {
    CheckKeys(entry, path, kEntryKeys);
    QJsonObject described;
    QJsonObject own;
    for (auto member = entry.begin(); member != entry.end(); ++member) {
      (kModelKeys.contains(member.key()) ? described : own)[member.key()] = *member;
    }
    const Kind& kind = KindOf(described, path);
    FleetProfile profile = kind.profile;
    ApplyProfile(own, path, profile);
    for (const char* key : {"name", "model", "dialogType", "modelCode", "connection"}) {
      if (!own.contains(QLatin1String(key)) && !kind.keys.contains(QLatin1String(key))) {
        throw WrongValue{path, ProfileFile::tr("\"%1\" is missing").arg(key)};
      }
    }
    CheckLink(profile, At(path, "link"));
    return profile;
  }

 private:
  struct Kind {
    FleetProfile profile;  ///< With the model.
    QStringList keys;
  };

  const Kind& KindOf(const QJsonObject& described, const QString& path) {
    const QByteArray text = QJsonDocument(described).toJson(QJsonDocument::Compact);
    if (const auto known = kinds_.find(text); known != kinds_.end()) return known->second;
    Draft draft = families_.Derive(described, path);
    draft.model.data = MakeModelData(draft.model.info);
    draft.profile.model = std::make_shared<const ProfileModel>(std::move(draft.model));
    return kinds_.emplace(text, Kind{std::move(draft.profile), std::move(draft.keys)})
        .first->second;
  }

  FamilyTree families_;
  std::map<QByteArray, Kind> kinds_;
};

/// Texts that must be unique in a file, each with the entry that has it.
class Unique {
 public:
  explicit Unique(QString key) : key_(std::move(key)) {}

  void Add(const std::string& text, int entry) {
    const auto [first, isNew] = entries_.emplace(text, entry);
    if (isNew) return;
    throw WrongValue{At(At(QStringLiteral("projectors"), entry), key_),
                     ProfileFile::tr("\"%1\" is the %2 of projectors[%3] too")
                         .arg(Text(text), key_, QString::number(first->second))};
  }

 private:
  const QString key_;
  std::unordered_map<std::string, int> entries_;
};

/// The presets that the projectors with a tag should be like, by tag.
std::map<std::string, std::string> TagPresets(const QJsonObject& tags) {
  std::map<std::string, std::string> presets;
  for (const QString& tag : tags.keys()) {
    const QString path = At("tags", tag);
    const QJsonObject settings = Object(tags[tag], path);
    CheckKeys(settings, path, {"snapshot"});
    if (settings.contains("snapshot"))
      presets[tag.toStdString()] = String(settings["snapshot"], At(path, "snapshot"));
  }
  return presets;
}

std::vector<FleetProfile> Profiles(const QJsonDocument& document) {
  if (!document.isObject()) throw WrongValue{{}, ProfileFile::tr("the file must hold an object")};
  const QJsonObject file = document.object();
  CheckKeys(file, {}, {"families", "projectors", "tags"});
  ProfileReader reader(file.contains("families") ? Object(file["families"], "families")
                                                 : QJsonObject());
  if (!file.contains("projectors"))
    throw WrongValue{{}, ProfileFile::tr("\"projectors\" is missing")};
  const QJsonArray entries = Array(file["projectors"], "projectors", kMaximumProjectors);
  const auto presets =
      TagPresets(file.contains("tags") ? Object(file["tags"], "tags") : QJsonObject());

  std::vector<FleetProfile> profiles;
  profiles.reserve(static_cast<std::size_t>(entries.size()));
  Unique names(QStringLiteral("name"));
  Unique identities(QStringLiteral("identity"));
  for (int i = 0; i < entries.size(); ++i) {
    const QString path = At(QStringLiteral("projectors"), i);
    profiles.push_back(reader.Read(Object(entries[i], path), path));
    FleetProfile& profile = profiles.back();
    for (auto tag = profile.tags.begin(); profile.snapshot.empty() && tag != profile.tags.end();
         ++tag) {
      if (const auto preset = presets.find(*tag); preset != presets.end())
        profile.snapshot = preset->second;
    }
    names.Add(profile.name, i);
    if (!profile.identity.empty()) identities.Add(profile.identity, i);
  }
  if (profiles.empty()) throw WrongValue{"projectors", ProfileFile::tr("there is no projector")};
  return profiles;
}

bool HoldsPassword(const QJsonValue& value) {
  if (value.isArray()) return std::ranges::any_of(value.toArray(), HoldsPassword);
  const QJsonObject object = value.toObject();
  return object.contains("secret") || std::ranges::any_of(object, HoldsPassword);
}

ProfileList Wrong(const QString& error) { return {.profiles = {}, .error = error}; }

}  // namespace

ProfileList ParseProfileList(const QByteArray& text, const QString& fileName) {
  const auto faultAt = [&](qsizetype offset, const QString& message) {
    const auto [line, column] = JsonLines::PlaceOf(text, offset);
    return Wrong(fileName + QStringLiteral(":%1:%2: ").arg(line).arg(column) + message);
  };
  if (const auto fault = JsonLines::FaultOf(text, kLimits))
    return faultAt(fault->offset, fault->message);
  QJsonParseError syntax;
  const QJsonDocument document = QJsonDocument::fromJson(text, &syntax);
  if (document.isNull()) return faultAt(syntax.offset, syntax.errorString());

  const auto wrongValue = [&](const QString& path, int line, const QString& message) {
    const QString place = path.isEmpty() ? QString() : path + QStringLiteral(": ");
    return Wrong(fileName + QStringLiteral(":%1: ").arg(line) + place + message);
  };
  const JsonLines lines(text);
  if (const auto repeated = lines.RepeatedKey()) {
    return wrongValue(repeated->path, repeated->line, ProfileFile::tr("is here twice"));
  }
  try {
    return {.profiles = Profiles(document), .error = {}};
  } catch (const WrongValue& wrong) {
    return wrongValue(wrong.path, lines.LineOf(wrong.path), wrong.message);
  }
}

ProfileFileText ReadProfileText(const QString& fileName) {
  const auto cannotRead = [&fileName](const QString& why) {
    return ProfileFileText{{}, ProfileFile::tr("cannot read profiles %1: %2").arg(fileName, why)};
  };
  // Opening must not wait for the other end of a pipe.
  const int descriptor =
      open(QFile::encodeName(fileName).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return cannotRead(qt_error_string());
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    close(descriptor);
    return cannotRead(ProfileFile::tr("not a regular file"));
  }
  QFile file;
  if (!file.open(descriptor, QFile::ReadOnly | QFile::Unbuffered, QFile::AutoCloseHandle)) {
    return cannotRead(file.errorString());
  }
  // In pieces, whatever size it claims, until there is no more or it exceeds the limit.
  QByteArray text;
  for (QByteArray piece = file.read(kPiece); !piece.isEmpty(); piece = file.read(kPiece)) {
    text += piece;
    if (text.size() > kLimits.bytes) break;
  }
  return file.error() == QFile::NoError ? ProfileFileText{text, {}}
                                        : cannotRead(file.errorString());
}

QString WriteProfileText(const QString& fileName, const QByteArray& text) {
  const bool isPrivate = HoldsPassword(QJsonDocument::fromJson(text).object());
  return WriteWholeFile(fileName, text, isPrivate ? FileAccess::OwnerOnly : FileAccess::Kept);
}

ProfileList ReadProfileList(const QString& fileName) {
  const ProfileFileText file = ReadProfileText(fileName);
  return file.error.isEmpty() ? ParseProfileList(file.text, fileName) : Wrong(file.error);
}

class ProfileChecker::Reader : public ProfileReader {
 public:
  using ProfileReader::ProfileReader;
};

ProfileChecker::ProfileChecker(const QByteArray& text)
    : reader_(
          std::make_unique<Reader>(QJsonDocument::fromJson(text).object()["families"].toObject())) {
}

ProfileChecker::~ProfileChecker() = default;

QString ProfileChecker::Check(const QJsonObject& entry, FleetProfile& profile) {
  try {
    profile = reader_->Read(entry, {});
    return {};
  } catch (const WrongValue& wrong) {
    return wrong.path.isEmpty() ? wrong.message : wrong.path + QStringLiteral(": ") + wrong.message;
  }
}

}  // namespace AdvancedControl

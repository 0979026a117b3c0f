#include "app/desktop/profiles/ProfileDocument.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include "app/profiles/WrittenMark.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "fleet/ProfileLock.h"
#include "fleet/WholeFile.h"

namespace {

const JsonEdit::Path kProjectors{"projectors"};
const QString kTags = QStringLiteral("tags");
const QString kSnapshot = QStringLiteral("snapshot");
const JsonEdit::Member kUnmarked{kWrittenMark, QJsonValue(QJsonValue::Undefined)};
/// How long the window may stand still for another program that changes the file.
constexpr std::chrono::milliseconds kMoment{500};

void SetPreset(QJsonObject& tags, const QString& tag, const QString& preset) {
  QJsonObject settings = tags[tag].toObject();
  settings[kSnapshot] = preset.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(preset);
  if (settings.isEmpty()) return tags.remove(tag);
  tags[tag] = settings;
}

JsonEdit::Path EntryPath(std::size_t projector) {
  return {"projectors", static_cast<qsizetype>(projector)};
}

}  // namespace

QString ProfileDocument::Load(const QString& fileName) {
  const ProfileFileText file = ReadProfileText(fileName);
  if (!file.error.isEmpty()) return file.error;
  ProfileList list = ParseProfileList(file.text, fileName);
  if (!list.error.isEmpty()) return list.error;
  fileName_ = fileName;
  text_ = file.text;
  file_ = {};
  projectors_ = std::move(list.profiles);
  return {};
}

QString ProfileDocument::SaveAs(const QString& fileName) {
  ProfileLock lock(fileName);
  if (QString error = lock.Take(kMoment); !error.isEmpty()) return error;
  if (QFileInfo::exists(fileName) && QFileInfo(fileName) == QFileInfo(fileName_)) {
    if (QString error = ChangedMeanwhile(); !error.isEmpty()) return error;
  }
  if (QString error = WriteProfileText(fileName, text_); !error.isEmpty()) return error;
  fileName_ = fileName;
  return {};
}

bool ProfileDocument::IsReadOnly() const {
  return HasFile() && !CheckWholeFile(fileName_).isEmpty();
}

const QJsonObject& ProfileDocument::File() const {
  if (file_.isEmpty()) file_ = QJsonDocument::fromJson(text_).object();
  return file_;
}

QStringList ProfileDocument::Families() const { return File()["families"].toObject().keys(); }

QJsonObject ProfileDocument::Family(const QString& name) const {
  QJsonObject own = File()["families"].toObject()[name].toObject();
  if (!own.contains("like")) return own;
  QJsonObject all = Family(own["like"].toString());
  for (auto member = own.constBegin(); member != own.constEnd(); ++member) {
    all[member.key()] = *member;
  }
  return all;
}

QMap<QString, QJsonObject> ProfileDocument::Models() const {
  static const QStringList kOfOne{"name", "connection", "link",           "identity",
                                  "tags", "notes",      "ratedLampHours", "snapshot"};
  QMap<QString, QJsonObject> models;
  const QJsonObject families = File()["families"].toObject();
  for (const QString& family : families.keys()) {
    const QString name = families[family].toObject()["model"].toString();
    if (!name.isEmpty()) models.insert(name, {{"like", family}});
  }
  for (const auto& value : File()["projectors"].toArray()) {
    QJsonObject entry = value.toObject();
    const QString name = entry["model"].toString();
    if (name.isEmpty() || models.contains(name)) continue;
    for (const QString& key : entry.keys()) {
      if (kOfOne.contains(key) || key.startsWith(QLatin1String("x-"))) entry.remove(key);
    }
    models.insert(name, entry);
  }
  return models;
}

QJsonObject ProfileDocument::Entry(std::size_t projector) const {
  return File()["projectors"].toArray().at(static_cast<qsizetype>(projector)).toObject();
}

QString ProfileDocument::Change(std::size_t projector, const JsonEdit::Members& members) {
  QByteArray text = text_;
  // Without an identity it was known by its name, which is another one now.
  const QString name = QString::fromStdString(projectors_[projector].name);
  const bool isRenamed = std::ranges::any_of(members, [&name](const JsonEdit::Member& member) {
    return member.key == QLatin1String("name") && member.value != name;
  });
  const bool needsIdentity = isRenamed && projectors_[projector].identity.empty();
  const JsonEdit::Members all = needsIdentity ? WithIdentity(members) : members;
  for (const JsonEdit::Member& member : all) {
    text = JsonEdit::SetMember(text, EntryPath(projector), member);
  }
  if (text != text_) text = JsonEdit::SetMember(text, EntryPath(projector), kUnmarked);
  return Write(text);
}

QString ProfileDocument::Insert(std::size_t after, const JsonEdit::Members& members) {
  return Write(JsonEdit::InsertElement(text_, kProjectors, static_cast<qsizetype>(after),
                                       JsonEdit::Write(WithIdentity(members))));
}

QString ProfileDocument::Duplicate(std::size_t projector, const JsonEdit::Members& members) {
  // A copy must not have the identity of the original.
  QByteArray copy =
      JsonEdit::SetMember(JsonEdit::TextAt(text_, EntryPath(projector)), {},
                          {QStringLiteral("identity"), QString::fromStdString(MakeIdentity())});
  copy = JsonEdit::SetMember(copy, {}, kUnmarked);
  for (const JsonEdit::Member& member : members) copy = JsonEdit::SetMember(copy, {}, member);
  return Write(
      JsonEdit::InsertElement(text_, kProjectors, static_cast<qsizetype>(projector), copy));
}

QString ProfileDocument::Remove(const std::vector<int>& projectors) {
  if (projectors.size() == 1) {
    return Write(
        JsonEdit::RemoveElement(text_, kProjectors, static_cast<qsizetype>(projectors.front())));
  }
  ProfileEdits edits(text_);
  for (const int projector : projectors) edits.Remove(static_cast<std::size_t>(projector));
  return Write(edits.Text());
}

QString ProfileDocument::Tag(const std::vector<int>& projectors, const QStringList& tags,
                             bool adds) {
  ProfileEdits edits(text_);
  for (const int projector : projectors) {
    const auto place = static_cast<std::size_t>(projector);
    QJsonArray all;
    for (const std::string& tag : projectors_[place].tags) {
      const QString text = QString::fromStdString(tag);
      if (adds || !tags.contains(text)) all.append(text);
    }
    for (const QString& tag : tags) {
      if (adds && !all.contains(tag)) all.append(tag);
    }
    edits.Change(place, {{QStringLiteral("tags"), all}, kUnmarked});
  }
  return Write(edits.Text());
}

QString ProfileDocument::SetMember(const std::vector<int>& projectors,
                                   const JsonEdit::Member& member) {
  ProfileEdits edits(text_);
  for (const int projector : projectors)
    edits.Change(static_cast<std::size_t>(projector), {member, kUnmarked});
  return Write(edits.Text());
}

QString ProfileDocument::WriteTags(const QByteArray& text, const QJsonObject& tags) {
  const QJsonValue value = tags.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(tags);
  return Write(JsonEdit::SetMember(text, {}, {kTags, value}));
}

QString ProfileDocument::SetTagPreset(const QString& tag, const QString& preset) {
  QJsonObject tags = File()[kTags].toObject();
  SetPreset(tags, tag, preset);
  return WriteTags(text_, tags);
}

// A projector that has it from a tag needs no change of its own.
QString ProfileDocument::ReplacePreset(const QString& from, const QString& to) {
  QJsonObject tags = File()[kTags].toObject();
  std::set<std::string> changed;
  for (const QString& tag : tags.keys()) {
    if (tags[tag].toObject()[kSnapshot].toString() != from) continue;
    changed.insert(tag.toStdString());
    SetPreset(tags, tag, to);
  }
  const QJsonValue value = to.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(to);
  ProfileEdits edits(text_);
  for (std::size_t i = 0; i < projectors_.size(); ++i) {
    const FleetProfile& profile = projectors_[i];
    if (profile.snapshot != from.toStdString()) continue;
    const bool isOfTag = std::ranges::any_of(
        profile.tags, [&](const std::string& tag) { return changed.contains(tag); });
    if (!isOfTag || Entry(i).contains(kSnapshot)) edits.Change(i, {{kSnapshot, value}});
  }
  return WriteTags(edits.Text(), tags);
}

QString ProfileDocument::ChangedMeanwhile() const {
  const ProfileFileText present = ReadProfileText(fileName_);
  if (!present.error.isEmpty() || present.text == text_) return present.error;
  return tr("%1 was changed by another program. Reload it (F5), then do this again.")
      .arg(fileName_);
}

QString ProfileDocument::Write(const QByteArray& text) {
  if (text == text_) return {};
  ProfileList list = ParseProfileList(text, fileName_);
  if (!list.error.isEmpty()) return list.error;
  ProfileLock lock(fileName_);
  if (QString error = lock.Take(kMoment); !error.isEmpty()) return error;
  if (QString error = ChangedMeanwhile(); !error.isEmpty()) return error;
  if (QString error = WriteProfileText(fileName_, text); !error.isEmpty()) return error;
  text_ = text;
  file_ = {};
  projectors_ = std::move(list.profiles);
  return {};
}

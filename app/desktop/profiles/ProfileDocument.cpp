#include "app/desktop/profiles/ProfileDocument.h"

#include <utility>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const JsonEdit::Path kProjectors{"projectors"};

JsonEdit::Path EntryPath(std::size_t projector) {
  return {"projectors", static_cast<qsizetype>(projector)};
}

}  // namespace

QString ProfileDocument::Load(const QString& fileName) {
  const ProfileFileText file = ReadProfileText(fileName);
  if (!file.error.isEmpty()) return file.error;
  ProfileFileContents contents = ParseProfiles(file.text, fileName);
  if (!contents.error.isEmpty()) return contents.error;
  fileName_ = fileName;
  text_ = file.text;
  file_ = QJsonDocument::fromJson(text_).object();
  projectors_ = std::move(contents.projectors);
  return {};
}

QString ProfileDocument::SaveAs(const QString& fileName) {
  if (QFileInfo::exists(fileName) && QFileInfo(fileName) == QFileInfo(fileName_)) {
    if (QString error = ChangedMeanwhile(); !error.isEmpty()) return error;
  }
  if (QString error = WriteProfileText(fileName, text_); !error.isEmpty()) return error;
  fileName_ = fileName;
  return {};
}

QJsonObject ProfileDocument::Family(const QString& name) const {
  QJsonObject own = file_["families"].toObject()[name].toObject();
  if (!own.contains("like")) return own;
  QJsonObject all = Family(own["like"].toString());
  for (auto member = own.constBegin(); member != own.constEnd(); ++member) {
    all[member.key()] = *member;
  }
  return all;
}

QJsonObject ProfileDocument::Entry(std::size_t projector) const {
  return file_["projectors"].toArray().at(static_cast<qsizetype>(projector)).toObject();
}

QString ProfileDocument::Change(std::size_t projector, const JsonEdit::Members& members) {
  QByteArray text = text_;
  for (const JsonEdit::Member& member : members) {
    text = JsonEdit::SetMember(text, EntryPath(projector), member);
  }
  return Write(text);
}

QString ProfileDocument::Insert(std::size_t after, const JsonEdit::Members& members) {
  return Write(JsonEdit::InsertElement(text_, kProjectors, static_cast<qsizetype>(after),
                                       JsonEdit::Write(members)));
}

QString ProfileDocument::Duplicate(std::size_t projector, const QString& name) {
  QByteArray copy = JsonEdit::SetMember(JsonEdit::TextAt(text_, EntryPath(projector)), {},
                                        {QStringLiteral("name"), name});
  // Which is that of one projector alone.
  copy = JsonEdit::SetMember(copy, {}, {QStringLiteral("identity"), QJsonValue::Undefined});
  return Write(
      JsonEdit::InsertElement(text_, kProjectors, static_cast<qsizetype>(projector), copy));
}

QString ProfileDocument::Remove(std::size_t projector) {
  return Write(JsonEdit::RemoveElement(text_, kProjectors, static_cast<qsizetype>(projector)));
}

QString ProfileDocument::ChangedMeanwhile() const {
  const ProfileFileText present = ReadProfileText(fileName_);
  if (!present.error.isEmpty() || present.text == text_) return present.error;
  return tr("%1 was changed by another program. Reload it (F5), then do this again.")
      .arg(fileName_);
}

QString ProfileDocument::Write(const QByteArray& text) {
  if (text == text_) return {};
  ProfileFileContents contents = ParseProfiles(text, fileName_);
  if (!contents.error.isEmpty()) return contents.error;
  if (QString error = ChangedMeanwhile(); !error.isEmpty()) return error;
  if (QString error = WriteProfileText(fileName_, text); !error.isEmpty()) return error;
  text_ = text;
  file_ = QJsonDocument::fromJson(text_).object();
  projectors_ = std::move(contents.projectors);
  return {};
}

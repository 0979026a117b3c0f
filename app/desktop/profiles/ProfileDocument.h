#pragma once

#include <utility>
#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>

#include "fleet/FleetProfile.h"
#include "fleet/JsonEdit.h"

/// The profile file that the program uses, and changes to it. Each change is written at once as a
/// whole file that keeps the user's formatting. If another program has changed the file meanwhile,
/// it is left alone; after an error it is as before.
///
/// A text as a result is a one-line error, empty on success.
class ProfileDocument {
  Q_DECLARE_TR_FUNCTIONS(ProfileDocument)

 public:
  ProfileDocument() = default;
  /// Without a file, for projectors that cannot be changed.
  explicit ProfileDocument(std::vector<FleetProfile> projectors)
      : projectors_(std::move(projectors)) {}

  /// Reads a file and replaces the present one. After an error nothing has changed.
  QString Load(const QString& fileName);

  /// Writes the document to another file, which replaces the present one.
  QString SaveAs(const QString& fileName);

  bool HasFile() const { return !fileName_.isEmpty(); }
  const QString& FileName() const { return fileName_; }

  /// In the order of the file.
  const std::vector<FleetProfile>& Projectors() const { return projectors_; }
  /// The text of the file.
  const QByteArray& Text() const { return text_; }
  /// Whether the file cannot be written.
  bool IsReadOnly() const;

  QStringList Families() const;
  /// A family's settings, including those it inherits; empty for an unknown name.
  QJsonObject Family(const QString& name) const;
  /// The models that the file describes, by name: the members of an entry that make one of them.
  QMap<QString, QJsonObject> Models() const;
  /// A projector's own entry in the file, without its family's settings.
  QJsonObject Entry(std::size_t projector) const;

  // These functions need a file.

  /// Sets members of a projector's entry; a member with an undefined value is removed.
  QString Change(std::size_t projector, const JsonEdit::Members& members);
  /// Inserts a projector after the one at `after`.
  QString Insert(std::size_t after, const JsonEdit::Members& members);
  /// Inserts a copy after a projector, with these members instead.
  QString Duplicate(std::size_t projector, const JsonEdit::Members& members);
  /// Removes projectors, unless no other is in the file.
  QString Remove(const std::vector<int>& projectors);
  /// Gives projectors these tags in addition, or takes them away.
  QString Tag(const std::vector<int>& projectors, const QStringList& tags, bool adds);
  /// Sets or removes one member of several entries.
  QString SetMember(const std::vector<int>& projectors, const JsonEdit::Member& member);
  /// Sets which preset the projectors with a tag should be like; empty for none.
  QString SetTagPreset(const QString& tag, const QString& preset);
  /// Names another preset wherever the file names this one; empty for none.
  QString ReplacePreset(const QString& from, const QString& to);
  /// Replaces the text of the file.
  QString Write(const QByteArray& text);

 private:
  const QJsonObject& File() const;
  QString WriteTags(const QByteArray& text, const QJsonObject& tags);
  QString ChangedMeanwhile() const;

  QString fileName_;
  QByteArray text_;           // as last read or written
  mutable QJsonObject file_;  // empty until it is needed
  std::vector<FleetProfile> projectors_;
};

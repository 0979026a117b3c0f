#pragma once

#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>

#include "fleet/JsonEdit.h"
#include "app/profiles/ProfileFile.h"

/// The profile file that the program works on, and changes to it. A change is written at once and
/// whole: what a person wrote in the file stays as it is, a file that somebody else changed
/// meanwhile is left alone, and after an error it is as it was.
///
/// Results that are texts are one line on what went wrong, empty when nothing did.
class ProfileDocument {
  Q_DECLARE_TR_FUNCTIONS(ProfileDocument)

 public:
  ProfileDocument() = default;
  /// Of projectors that are in no file; they cannot be changed.
  explicit ProfileDocument(std::vector<ProjectorProfile> projectors)
      : projectors_(std::move(projectors)) {}

  /// Reads a file in place of any before; after an error nothing has changed.
  QString Load(const QString& fileName);

  /// Writes what was read to another file, which is the one worked on from then on.
  QString SaveAs(const QString& fileName);

  bool HasFile() const { return !fileName_.isEmpty(); }
  const QString& FileName() const { return fileName_; }

  /// In the order of the file.
  const std::vector<ProjectorProfile>& Projectors() const { return projectors_; }

  QStringList Families() const { return file_["families"].toObject().keys(); }
  /// All that a family says, with what it is like; empty for a name that is no family's.
  QJsonObject Family(const QString& name) const;
  /// What the file says of a projector itself.
  QJsonObject Entry(std::size_t projector) const;

  // Each needs a file.

  /// Gives a projector's entry these members; undefined values take theirs out.
  QString Change(std::size_t projector, const JsonEdit::Members& members);
  /// Puts a projector behind another.
  QString Insert(std::size_t after, const JsonEdit::Members& members);
  /// Puts a copy with another name behind a projector.
  QString Duplicate(std::size_t projector, const QString& name);
  /// The only projector of a file cannot be removed.
  QString Remove(std::size_t projector);

 private:
  QString Write(const QByteArray& text);
  QString ChangedMeanwhile() const;

  QString fileName_;
  QByteArray text_;  // as it was read or written last
  QJsonObject file_;
  std::vector<ProjectorProfile> projectors_;
};

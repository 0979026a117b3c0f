#pragma once

#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>

#include "app/profiles/ProfileFile.h"
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
  /// For projectors that are in no file; they cannot be changed.
  explicit ProfileDocument(std::vector<ProjectorProfile> projectors)
      : projectors_(std::move(projectors)) {}

  /// Reads a file and replaces the present one. After an error nothing has changed.
  QString Load(const QString& fileName);

  /// Writes the document to another file, which replaces the present one.
  QString SaveAs(const QString& fileName);

  bool HasFile() const { return !fileName_.isEmpty(); }
  const QString& FileName() const { return fileName_; }

  /// In the order of the file.
  const std::vector<ProjectorProfile>& Projectors() const { return projectors_; }

  QStringList Families() const { return file_["families"].toObject().keys(); }
  /// A family's settings, including those it inherits; empty for an unknown name.
  QJsonObject Family(const QString& name) const;
  /// A projector's own entry in the file, without its family's settings.
  QJsonObject Entry(std::size_t projector) const;

  // These functions need a file.

  /// Sets members of a projector's entry; a member with an undefined value is removed.
  QString Change(std::size_t projector, const JsonEdit::Members& members);
  /// Inserts a projector after the one at `after`.
  QString Insert(std::size_t after, const JsonEdit::Members& members);
  /// Inserts a copy with another name after a projector.
  QString Duplicate(std::size_t projector, const QString& name);
  /// Removes a projector, unless it is the only one of the file.
  QString Remove(std::size_t projector);

 private:
  QString Write(const QByteArray& text);
  QString ChangedMeanwhile() const;

  QString fileName_;
  QByteArray text_;  // as last read or written
  QJsonObject file_;
  std::vector<ProjectorProfile> projectors_;
};

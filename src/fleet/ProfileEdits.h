#pragma once

#include <cstddef>
#include <vector>

#include <QByteArray>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetProfile.h"
#include "fleet/JsonEdit.h"

namespace AdvancedControl {

/// Many changes to the text of a profile file, which leave everything else in it as it was written.
/// They take time in proportion to what is changed, and the text is put together once.
class PROJECTOR_FLEET_EXPORT ProfileEdits {
 public:
  /// `text` must be a profile file without an error, or `kNoProfiles`.
  explicit ProfileEdits(const QByteArray& text);

  /// The text of a file to which projectors are yet to be added.
  static const QByteArray kNoProfiles;

  /// Those of the text and those that were added; removed ones keep their place here.
  std::size_t Count() const { return entries_.size(); }

  /// Gives an entry these members; undefined values take theirs out.
  void Change(std::size_t projector, const JsonEdit::Members& members);
  /// Adds an entry behind the last one.
  void Add(const JsonEdit::Members& members);
  void Remove(std::size_t projector) { entries_[projector].isThere = false; }

  /// A text without any projector is not a profile file.
  QByteArray Text() const;

 private:
  struct Entry {
    QByteArray before;  // what stands between the one before and this
    QByteArray text;
    bool isThere = true;
  };

  QByteArray head_;  // up to the first entry
  QByteArray tail_;
  QByteArray separator_;
  std::vector<Entry> entries_;
};

/// What a file says of the connection of a profile.
PROJECTOR_FLEET_EXPORT QJsonValue ConnectionValue(const ProfileConnection& connection);
/// The name of a link in a file.
PROJECTOR_FLEET_EXPORT QString LinkName(ProjectorLink link);

}  // namespace AdvancedControl

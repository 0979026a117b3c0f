#include "app/profiles/ProfileFile.h"

namespace {

ProfileFileContents Contents(const ProfileList& list) {
  ProfileFileContents contents{.projectors = {}, .error = list.error};
  contents.projectors.reserve(list.profiles.size());
  for (const FleetProfile& profile : list.profiles) {
    contents.projectors.push_back(MakeProjectorProfile(profile));
  }
  return contents;
}

}  // namespace

ProfileFileContents ReadProfileFile(const QString& fileName) {
  return Contents(ReadProfileList(fileName));
}

ProfileFileContents ParseProfiles(const QByteArray& text, const QString& fileName) {
  return Contents(ParseProfileList(text, fileName));
}

#include "bench/DesktopProfiles.h"

#include <cstdio>
#include <cstdlib>

#include <QFile>

namespace {

constexpr int kTags = 20;

/// Profiles of rooms at addresses where nothing answers.
QByteArray Profiles(int count) {
  QByteArray text =
      "{\"families\": {\"M\": {\"model\": \"QD-M7450\", \"dialogType\": 5, \"modelCode\": 30, "
      "\"link\": \"pjlink\", \"ratedLampHours\": 3000}},\n\"projectors\": [";
  for (int i = 0; i < count; ++i) {
    if (i > 0) text += ',';
    text += QStringLiteral(
                "\n{\"name\": \"Room %1\", \"like\": \"M\", \"tags\": [\"Building %2\"], "
                "\"connection\": {\"network\": {\"address\": \"127.1.%3.%4\", \"port\": 1}}}")
                .arg(i * 7919 % count)
                .arg(i % kTags)
                .arg(i / 250)
                .arg(i % 250 + 1)
                .toUtf8();
  }
  return text + "\n]}\n";
}

}  // namespace

QString WriteProfiles(const QTemporaryDir& folder, int count) {
  QFile file(folder.filePath("profiles.json"));
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(Profiles(count));
  return file.fileName();
}

ProfileDocument LoadProfiles(const QString& fileName) {
  ProfileDocument document;
  if (const QString error = document.Load(fileName); !error.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(error));
    std::abort();
  }
  return document;
}

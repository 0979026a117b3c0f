// Any bytes as what a client of the bridge sends, in parts; as a topic, and as a claim.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "app/bridge/HttpRequest.h"
#include "app/bridge/ShareKeeper.h"
#include "app/bridge/Topics.h"
#include "fuzz/Check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  HttpRequest whole;
  whole.Take(text);
  HttpRequest parts;
  for (const char& c : text) parts.Take({&c, 1});
  Check(whole.Status() == parts.Status() && whole.Path() == parts.Path());
  Check(whole.Status() != 200 || whole.Path().startsWith('/'));
  Check(whole.Parameter("target") == parts.Parameter("target"));

  const QByteArray bytes(text.data(), static_cast<qsizetype>(size));
  const Topics topics("p", "1-of-1");
  const auto [id, key] = topics.ParseSet(bytes);
  Check(id.isEmpty() || topics.Set(id, key) == bytes);
  const QByteArray level = TopicLevel(text);
  Check(!level.isEmpty() && !level.contains('/') && !level.contains('+') && !level.contains('#'));
  if (const auto claim = ParseClaim(bytes)) Check(ParseClaim(ClaimMessage(*claim)) == claim);
  return 0;
}

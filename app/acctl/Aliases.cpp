#include "app/acctl/Aliases.h"

#include <algorithm>

std::span<const Alias> Aliases() {
  static const std::vector<Alias> aliases{
      {"power", {"other.power", "status.power"}},
      {"input", {"other.input-source", "status.input-source"}},
      {"blank", {"other.blank", "status.blank"}},
      {"mute", {"other.mute", "status.mute"}},
      {"freeze", {"other.freeze", "status.freeze"}},
      {"error", {"status.error"}},
      {"lamp-hours", {"status.lamp-time"}},
      {"filter-hours", {"status.filter-time"}},
      {"brightness", {"picture.brightness", "main.brightness", "setup.brightness"}},
      {"contrast", {"picture.contrast", "main.contrast", "setup.contrast"}},
      {"color", {"picture.color", "setup.color"}},
      {"color-bal-r", {"picture.color-bal-r", "setup.color-balance-r"}},
      {"color-bal-b", {"picture.color-bal-b", "setup.color-balance-b"}},
      {"tint", {"picture.tint", "setup.tint"}},
      {"sharpness", {"picture.sharpness", "setup.sharpness"}},
      {"gamma", {"picture.gamma", "main.gamma", "image.gamma"}},
      {"color-temp", {"picture.color-temp", "image.color-temp"}},
      {"active-iris", {"picture.active-iris"}},
      {"aspect", {"image.aspect", "main.aspect", "setup.aspect"}},
      {"over-scan", {"image.over-scan", "picture.over-scan"}},
      {"position-h", {"image.position-h", "picture.position-h", "setup.position-h"}},
      {"position-v", {"image.position-v", "picture.position-v", "setup.position-v"}},
      {"h-phase", {"image.h-phase", "picture.h-phase", "setup.h-phase"}},
      {"h-size", {"image.h-size", "picture.h-size", "setup.h-size"}},
      {"keystone", {"setup.keystone-v", "setup.keystone", "main.keystone", "image.keystone"}},
      {"mirror", {"setup.mirror", "main.mirror", "image.mirror"}},
      {"whisper", {"setup.whisper", "option.whisper", "main.whisper"}},
      {"volume", {"audio.volume", "setup.volume", "option.volume"}},
      {"speaker", {"audio.speaker", "setup.speaker"}},
      {"stereo", {"option.stereo", "setup.stereo"}},
      {"hdmi-audio", {"audio.hdmi-audio", "setup.hdmi-audio"}},
      {"audio-component", {"audio.component", "setup.audio-component"}},
      {"audio-computer1", {"audio.computer1", "setup.audio-computer1"}},
      {"audio-computer2", {"audio.computer2", "setup.audio-computer2"}},
      {"audio-hdmi", {"audio.hdmi", "setup.audio-hdmi"}},
      {"audio-miu", {"audio.miu", "setup.audio-miu"}},
      {"audio-rgb1", {"audio.rgb1", "setup.audio-rgb1"}},
      {"audio-rgb2", {"audio.rgb2", "setup.audio-rgb2"}},
      {"audio-s-video", {"audio.s-video", "setup.audio-s-video"}},
      {"audio-video", {"audio.video", "setup.audio-video"}},
      {"language", {"screen.language", "option.language"}},
      {"startup", {"screen.startup", "image.startup"}},
      {"blank-color", {"screen.blank", "image.blank"}},
      {"auto-on", {"option.auto-on", "auto.on"}},
      {"auto-off", {"option.auto-off", "auto.off"}},
      {"auto-search", {"option.auto-search", "auto.search"}},
      {"ir-front", {"setup.ir-front", "service.ir-front", "option.ir-front"}},
      {"ir-rear", {"service.ir-rear", "option.ir-rear"}},
      {"ir-top", {"setup.ir-top", "service.ir-top"}},
      {"p-in-p-audio", {"input.p-in-p-audio", "image.pin-p-audio"}},
      {"p-in-p-input", {"input.p-in-p-input", "image.pin-p-input"}},
      {"p-in-p-position", {"input.p-in-p-position", "image.pin-p-position"}},
      {"p-in-p-size", {"input.p-in-p-size", "image.pin-p-size"}},
      {"3d-ycs", {"input.3d-ycs", "video.3d-ycs"}},
      {"video-nr", {"input.video-nr", "video.video-nr"}},
      {"progressive", {"picture.progressive", "input.progressive", "video.progressive"}},
  };
  return aliases;
}

const ModelSetting* FindSetting(const ModelSettings& model, std::string_view word,
                                bool (*fits)(const ModelSetting&)) {
  const ModelSetting* found = model.Find(word);
  if (found != nullptr || word.find('.') != std::string_view::npos) return found;
  const auto alias = std::ranges::find(Aliases(), word, &Alias::name);
  if (alias == Aliases().end()) return nullptr;
  for (const std::string_view key : alias->keys) {
    const ModelSetting* const setting = model.Find(key);
    if (setting == nullptr) continue;
    if (fits(*setting)) return setting;
    if (found == nullptr) found = setting;
  }
  return found;
}

std::string_view AliasOf(std::string_view key) {
  const auto alias = std::ranges::find_if(Aliases(), [key](const Alias& known) {
    return std::ranges::find(known.keys, key) != known.keys.end();
  });
  return alias != Aliases().end() ? alias->name : std::string_view();
}

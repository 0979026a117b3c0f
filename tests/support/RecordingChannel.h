#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "device/ProjectorChannel.h"

using Strings = std::vector<std::string>;

/// A projector with scripted replies that records the commands in order.
///
/// A command reads as "SetBrightness 140", "Get 0x2003", "Set 0x3304 16", "SetVolumeEachSrc 3 12";
/// a key is a command, or its first words. Unless scripted, every command is accepted and every
/// value is 0.
class RecordingChannel final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override;

  /// Sets the value of the commands with this key.
  void Answer(const std::string& key, int value) { values_[key] = value; }
  /// Refuses the commands with this key, with the result that means refusal in their family.
  void Refuse(const std::string& key) { refused_.insert(key); }
  /// Sets the result of the commands with this key, unless they are refused.
  void AnswerResult(const std::string& key, int result) { results_[key] = result; }
  void Accept(const std::string& key) { refused_.erase(key); }

  /// The commands since the last call, oldest first.
  Strings Take();
  /// The same without the reads.
  Strings TakeChanges();

 private:
  std::map<std::string, int> values_;
  std::map<std::string, int> results_;
  std::set<std::string> refused_;
  Strings sent_;
};

/// A projector's answers to commands with these keys; a negative one is a refusal.
inline auto Answers(const std::map<std::string, int>& values) {
  return [values](RecordingChannel& projector) {
    for (const auto& [key, value] : values) {
      value < 0 ? projector.Refuse(key) : projector.Answer(key, value);
    }
  };
}

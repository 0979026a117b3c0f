#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "device/ProjectorChannel.h"

/// A projector with scripted replies that remembers what was sent, in order.
///
/// A command reads as "SetBrightness 140", "Get 0x2003", "Set 0x3304 16", "SetVolumeEachSrc 3 12";
/// a key is the command, or as many of its words as tell which are meant. Everything is accepted
/// and every value is 0 unless told otherwise.
class RecordingChannel final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override;

  /// What the commands with this key answer.
  void Answer(const std::string& key, int value) { values_[key] = value; }
  /// The commands with this key are refused, as their family says it.
  void Refuse(const std::string& key) { refused_.insert(key); }
  /// The commands with this key, unless refused, answer with this result instead of plain success.
  void AnswerResult(const std::string& key, int result) { results_[key] = result; }
  void Accept(const std::string& key) { refused_.erase(key); }

  /// The commands since the last call, oldest first.
  std::vector<std::string> Take();
  /// The same without the reads.
  std::vector<std::string> TakeChanges();

 private:
  std::map<std::string, int> values_;
  std::map<std::string, int> results_;
  std::set<std::string> refused_;
  std::vector<std::string> sent_;
};

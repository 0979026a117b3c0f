#pragma once

#include <concepts>
#include <string_view>

#include <QByteArray>

/// Builds a text in the exposition format of metrics stores: a family's head, then its samples.
class MetricsText {
 public:
  /// Begins a family. Its head is written with its first sample.
  void Begin(std::string_view name, std::string_view type, std::string_view help);
  /// Adds a sample of the family. `labels` is empty or made by `Label`, several joined with commas;
  /// `suffix` follows the family's name.
  void Add(const QByteArray& labels, double value, std::string_view suffix = {});
  void Add(const QByteArray& labels, std::integral auto value, std::string_view suffix = {}) {
    AddText(labels, QByteArray::number(value), suffix);
  }

  const QByteArray& Text() const { return text_; }

  /// name="value", quoted as necessary.
  static QByteArray Label(std::string_view name, std::string_view value);

 private:
  void AddText(const QByteArray& labels, const QByteArray& value, std::string_view suffix);

  QByteArray text_;
  QByteArray name_;
  QByteArray head_;
};

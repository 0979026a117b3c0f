#include "app/bridge/MetricsText.h"

namespace {

QByteArray Bytes(std::string_view text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}

}  // namespace

void MetricsText::Begin(std::string_view name, std::string_view type, std::string_view help) {
  name_ = Bytes(name);
  head_ = "# HELP " + name_ + ' ' + Bytes(help) + "\n# TYPE " + name_ + ' ' + Bytes(type) + '\n';
}

void MetricsText::Add(const QByteArray& labels, double value, std::string_view suffix) {
  constexpr int kDigits = 14;
  AddText(labels, QByteArray::number(value, 'g', kDigits), suffix);
}

void MetricsText::AddText(const QByteArray& labels, const QByteArray& value,
                          std::string_view suffix) {
  // Piece by piece: a store may have a hundred thousand samples.
  text_ += head_;
  head_.clear();
  text_ += name_;
  text_.append(suffix.data(), static_cast<qsizetype>(suffix.size()));
  if (!labels.isEmpty()) {
    text_ += '{';
    text_ += labels;
    text_ += '}';
  }
  text_ += ' ';
  text_ += value;
  text_ += '\n';
}

QByteArray MetricsText::Label(std::string_view name, std::string_view value) {
  QByteArray label;
  label.reserve(static_cast<qsizetype>(name.size() + value.size()) + 3);
  label += Bytes(name);
  label += "=\"";
  for (const char c : value) {
    if (c == '\\' || c == '"') label += '\\';
    if (c == '\n') {
      label += "\\n";
    } else {
      label += c;
    }
  }
  return label + '"';
}

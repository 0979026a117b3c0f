#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/acctl/Arguments.h"

struct OptionForm {
  std::string_view name{};
  char letter = 0;           ///< The short form; 0 for none.
  std::string_view value{};  ///< Placeholder of its value; empty for a switch.
  std::string_view help{};
  /// Stores the value; returns false if it is invalid.
  std::function<bool(Arguments&, const std::string&)> take{};
  std::vector<Command> of{};  ///< The commands that have it; empty for all.
  bool isDefault = false;     ///< The environment and the configuration file may give it.
  bool isForAsking = false;   ///< It is about how projectors are asked.

  bool IsOf(Command command) const;
};

const std::vector<OptionForm>& OptionForms();
/// The option of this name, or null.
const OptionForm* FindOption(std::string_view name);

std::string_view NameOf(Format format);

#pragma once

#include <string>
#include <vector>

#include "tests/support/DialogDriver.h"

/// What a user does with a control, and the commands that follow, reads included.
struct Use {
  int control;   ///< Button or check box to click, list to choose from, slider to drag.
  int position;  ///< Of the list or slider; any for a button.
  std::vector<std::string> commands;
};

/// One row of a page as its user meets it: one line a row in a page's test.
struct RowCase {
  int control;        ///< The list, slider, field or check box that shows the setting.
  std::string read;   ///< Key of the command that reads it; empty where nothing does.
  int value = 0;      ///< A device value, and
  std::string shown;  ///< what the control then shows: an entry's text, a number, "on" or "off".
  std::vector<Use> uses{};
  std::string refuse{};  ///< Key of the command to refuse; the first use is then tried again.
  int error = 0;         ///< Number of the text that tells it; 0 for none.
  std::string after{};   ///< What is shown then; empty for the same as before the use.
};

/// Holds the open page against a row: reading, a failed read, each use, a refusal.
void ExpectRow(OpenDialog& open, const RowCase& row);

/// The same for each row, on a page opened afresh.
void ExpectRowCases(const CModelInfo2& model, int tab, const std::vector<RowCase>& rows);

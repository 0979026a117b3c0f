#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "tests/support/DialogDriver.h"
#include "toolkit/CComboBox.h"

/// A control of a page and the command that reads its setting, empty where nothing is read.
struct ReadRow {
  int control;
  std::string read;
};

/// Which rows models have: a digit per row, for the codes in the key, "30 31".
using RowsOfModels = std::map<std::string, std::string>;

/// The digits of a model; empty for one that the table does not have.
inline std::string DigitsOf(const RowsOfModels& models, int code) {
  for (const auto& [codes, digits] : models) {
    if (codes.find(std::to_string(code)) != std::string::npos) return digits;
  }
  return {};
}

/// The rows with digit 1 are there and were read in order, the others neither; without digits the
/// whole template is there and nothing was read.
inline void ExpectRows(std::span<const ReadRow> rows, const std::string& digits,
                       const CDialog& page, const std::vector<std::string>& sent) {
  std::vector<std::string> reads;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const bool present = digits.empty() || digits.at(row) == '1';
    EXPECT_EQ(page.GetDlgItem(rows[row].control)->isVisible(), present) << rows[row].control;
    if (!digits.empty() && present && !rows[row].read.empty()) reads.push_back(rows[row].read);
  }
  EXPECT_EQ(sent, reads);
}

/// A choice in a list of a model's page, and the one command that it sends.
struct ListChoice {
  int modelCode;
  int list;
  int position;
  std::string command;
};

/// Chooses as a user does, after a selection by program, which must send nothing.
inline void ExpectSent(const ListChoice& choice, OpenDialog& open) {
  SCOPED_TRACE("list " + std::to_string(choice.list));
  const DialogDriver driver = open.Driver();
  driver.Item<CComboBox>(choice.list).Select(choice.position == 0 ? 1 : 0);
  EXPECT_EQ(open.Projector().Take(), std::vector<std::string>{});
  driver.Choose(choice.list, choice.position);
  EXPECT_EQ(open.Projector().TakeChanges(), std::vector{choice.command});
  EXPECT_EQ(driver.Selected(choice.list), choice.position);
}

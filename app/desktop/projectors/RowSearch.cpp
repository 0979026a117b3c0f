#include "app/desktop/projectors/RowSearch.h"

#include <algorithm>
#include <unordered_map>

void RowSearch::SetRows(const std::vector<ProjectorRow>& rows) {
  texts_.ForgetUnused();  // another reading of the profiles has models of its own
  searched_.clear();
  for (const ProjectorRow& row : rows) searched_.push_back(SearchTexts::OfProjector(row.profile));
}

std::vector<int> RowSearch::Matching(const std::vector<ProjectorRow>& rows,
                                     const ProjectorGroup& group) {
  const QStringList words = text_.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  std::unordered_map<const ProfileModel*, std::vector<bool>> inModel;
  const auto matches = [&](std::size_t position) {
    const ProjectorRow& row = rows[position];
    if (!group.Has(row)) return false;
    if (words.isEmpty()) return true;
    std::vector<bool>& found = inModel[row.profile.model.get()];
    if (found.empty()) {
      const QString& text = texts_.OfModel(row.profile.model);
      for (const QString& word : words) found.push_back(text.contains(word));
    }
    for (qsizetype i = 0; i < words.size(); ++i) {
      if (!found[static_cast<std::size_t>(i)] && !searched_[position].contains(words[i]))
        return false;
    }
    return true;
  };
  std::vector<int> positions;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (matches(i)) positions.push_back(static_cast<int>(i));
  }
  return positions;
}

void RowSearch::PutExactFirst(const std::vector<ProjectorRow>& rows,
                              std::vector<int>& positions) const {
  if (text_.isEmpty()) return;
  // Not that of std::ranges: clang 14 cannot use its result with this standard library.
  std::stable_partition(positions.begin(), positions.end(), [&](int position) {
    const std::string& name = rows[static_cast<std::size_t>(position)].profile.name;
    return QString::fromStdString(name).toLower() == text_;
  });
}

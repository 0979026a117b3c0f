#include "fleet/CsvColumn.h"

#include <algorithm>
#include <iterator>

namespace AdvancedControl {

namespace {

struct Heading {
  QStringView text;  ///< In lower case, letters and digits alone.
  CsvColumn column;
};

constexpr Heading kHeadings[] = {
    {u"name", CsvColumn::Name},
    {u"projector", CsvColumn::Name},
    {u"projectorname", CsvColumn::Name},
    {u"devicename", CsvColumn::Name},
    {u"address", CsvColumn::Address},
    {u"ip", CsvColumn::Address},
    {u"ipaddress", CsvColumn::Address},
    {u"host", CsvColumn::Address},
    {u"hostname", CsvColumn::Address},
    {u"port", CsvColumn::Port},
    {u"tcpport", CsvColumn::Port},
    {u"link", CsvColumn::Link},
    {u"protocol", CsvColumn::Link},
    {u"password", CsvColumn::Password},
    {u"secret", CsvColumn::Password},
    {u"family", CsvColumn::Family},
    {u"like", CsvColumn::Family},
    {u"model", CsvColumn::Model},
    {u"modelname", CsvColumn::Model},
    {u"identity", CsvColumn::Identity},
    {u"id", CsvColumn::Identity},
    {u"serial", CsvColumn::Serial},
    {u"serialnumber", CsvColumn::Serial},
    {u"mac", CsvColumn::Mac},
    {u"macaddress", CsvColumn::Mac},
    {u"tags", CsvColumn::Tags},
    {u"tag", CsvColumn::Tags},
    {u"group", CsvColumn::Tags},
    {u"location", CsvColumn::Tags},
    {u"site", CsvColumn::Tags},
    {u"building", CsvColumn::Tags},
    {u"room", CsvColumn::Tags},
    {u"notes", CsvColumn::Notes},
    {u"note", CsvColumn::Notes},
    {u"comment", CsvColumn::Notes},
    {u"remarks", CsvColumn::Notes},
    {u"description", CsvColumn::Notes},
    {u"ratedlamphours", CsvColumn::RatedLampHours},
    {u"lamplife", CsvColumn::RatedLampHours},
    {u"snapshot", CsvColumn::Snapshot},
};

}  // namespace

std::optional<CsvColumn> CsvColumnOf(const QString& heading) {
  QString plain = heading.toLower();
  plain.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
  const auto* const found = std::ranges::find(kHeadings, QStringView(plain), &Heading::text);
  return found == std::end(kHeadings) ? std::nullopt : std::optional(found->column);
}

}  // namespace AdvancedControl

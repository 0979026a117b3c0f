#include "app/bridge/Metrics.h"

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

#include "app/bridge/StateMessage.h"

namespace {

constexpr double kSecondsPerHour = 3600;

double Seconds(WallTime time) {
  return std::chrono::duration<double>(
             std::chrono::floor<std::chrono::milliseconds>(time).time_since_epoch())
      .count();
}

/// The samples of one projector.
class Sampler {
 public:
  Sampler(MetricsText& text, const QByteArray& labels) : text_(text), labels_(labels) {}

  void operator()(auto value) const { text_.Add(labels_, value); }
  void operator()(std::string_view label, std::string_view labelValue, auto value) const {
    text_.Add(labels_ + ',' + MetricsText::Label(label, labelValue), value);
  }
  /// With more labels.
  void Info(const QByteArray& more) const { text_.Add(labels_ + ',' + more, 1); }

 private:
  MetricsText& text_;
  const QByteArray& labels_;
};

struct Family {
  const char* name;
  const char* type;
  const char* help;
  void (*add)(const Sampler& sample, const FleetProfile& profile, const LiveState& state);
};

void AddPower(const Sampler& sample, const FleetProfile&, const LiveState& state) {
  if (!state.power) return;
  for (const PowerState power :
       {PowerState::Standby, PowerState::WarmingUp, PowerState::On, PowerState::CoolingDown}) {
    sample("state", NameOf(power), state.power == power ? 1 : 0);
  }
}

void AddErrors(const Sampler& sample, const FleetProfile&, const LiveState& state) {
  for (std::size_t i = 0; state.problems && i < state.problems->size(); ++i) {
    sample("component", NameOf(static_cast<ProjectorPart>(i)),
           static_cast<int>(state.problems->at(i)));
  }
}

void AddLamps(const Sampler& sample, const FleetProfile&, const LiveState& state) {
  for (std::size_t i = 0; i < state.lamps.size(); ++i) {
    sample("lamp", std::to_string(i + 1), state.lamps[i].hours * kSecondsPerHour);
  }
}

constexpr Family kFamilies[] = {
    {"projector_info", "gauge", "Identity, model and address of the projector; always 1.",
     [](const Sampler& sample, const FleetProfile& profile, const LiveState&) {
       sample.Info(MetricsText::Label("identity", FleetIdOf(profile)) + ',' +
                   MetricsText::Label("model", profile.model->data.ModelName) + ',' +
                   MetricsText::Label("address", ConnectionText(profile.connection).toStdString()));
     }},
    {"projector_up", "gauge", "Whether the projector answers.",
     [](const Sampler& sample, const FleetProfile&, const LiveState& state) {
       if (state.reachability == Reachability::NeverAsked) return;
       sample(state.reachability == Reachability::Answers ? 1 : 0);
     }},
    {"projector_last_answer_timestamp_seconds", "gauge", "When the projector answered last.",
     [](const Sampler& sample, const FleetProfile&, const LiveState& state) {
       if (state.answered) sample(Seconds(*state.answered));
     }},
    {"projector_power_state", "gauge", "1 for the present power state, 0 for the others.",
     AddPower},
    {"projector_error", "gauge", "Problem of a component: 0 none, 1 warning, 2 error.", AddErrors},
    {"projector_lamp_seconds_total", "counter", "Time that the lamp has been used.", AddLamps},
    {"projector_lamp_rated_seconds", "gauge", "Time that a lamp should last.",
     [](const Sampler& sample, const FleetProfile& profile, const LiveState&) {
       if (profile.ratedLampHours > 0) sample(profile.ratedLampHours * kSecondsPerHour);
     }},
    {"projector_filter_seconds_total", "counter", "Time that the filter has been used.",
     [](const Sampler& sample, const FleetProfile&, const LiveState& state) {
       if (state.filterHours) sample(*state.filterHours * kSecondsPerHour);
     }},
    {"projector_input_info", "gauge", "The present input; always 1.",
     [](const Sampler& sample, const FleetProfile&, const LiveState& state) {
       if (!state.source) return;
       sample.Info(MetricsText::Label("input", state.source->name) + ',' +
                   MetricsText::Label("number", std::to_string(state.source->number)));
     }},
    {"projector_drift_settings", "gauge", "Settings that differ from the projector's snapshot.",
     [](const Sampler& sample, const FleetProfile&, const LiveState& state) {
       if (state.drift) sample(*state.drift);
     }},
};

void AddCounts(MetricsText& text, const char* label,
               const std::map<std::string, std::uint64_t>& counts) {
  for (const auto& [name, count] : counts) {
    text.Add(MetricsText::Label(label, name), quint64{count});
  }
}

void AddAnswers(MetricsText& text, const LatencyHistogram& answers) {
  text.Begin("projector_bridge_answer_seconds", "histogram",
             "Time until the first answer of a visit.");
  for (std::size_t i = 0; i < LatencyHistogram::kBounds.size(); ++i) {
    const QByteArray bound = QByteArray::number(LatencyHistogram::kBounds.at(i));
    text.Add("le=\"" + bound + '"', quint64{answers.UpTo(i)}, "_bucket");
  }
  text.Add("le=\"+Inf\"", quint64{answers.Count()}, "_bucket");
  text.Add({}, answers.Sum(), "_sum");
  text.Add({}, quint64{answers.Count()}, "_count");
}

}  // namespace

void AddProjectors(MetricsText& text, std::span<const MeasuredProjector> projectors) {
  std::vector<QByteArray> labels;
  labels.reserve(projectors.size());
  for (const auto& [profile, state] : projectors) {
    labels.push_back(MetricsText::Label("projector", profile->name));
  }
  for (const Family& family : kFamilies) {
    text.Begin(family.name, family.type, family.help);
    for (std::size_t i = 0; i < projectors.size(); ++i) {
      family.add(Sampler(text, labels[i]), *projectors[i].profile, projectors[i].state);
    }
  }
}

void AddBridge(MetricsText& text, const BridgeCounts& counts) {
  const auto gauge = [&text](const char* name, const char* help, auto value) {
    text.Begin(name, "gauge", help);
    text.Add({}, value);
  };
  text.Begin("projector_bridge_info", "gauge", "Version and share of the bridge; always 1.");
  text.Add(MetricsText::Label("version", counts.version) + ',' +
               MetricsText::Label("share", counts.share),
           1);
  gauge("projector_bridge_projectors", "Projectors of the share.", quint64{counts.projectors});
  gauge("projector_bridge_common_projectors",
        "Projectors that bridges with other shares visit too.", quint64{counts.common});
  gauge("projector_bridge_holds_share",
        "Whether the bridge works; 0 while another one has its share.", counts.holdsShare ? 1 : 0);
  if (counts.isConnected) {
    gauge("projector_bridge_broker_connected", "Whether the broker is connected.",
          *counts.isConnected ? 1 : 0);
  }
  gauge("projector_bridge_commands_enabled", "Whether the bridge takes commands.",
        counts.takesCommands ? 1 : 0);
  text.Begin("projector_bridge_visits_total", "counter", "Visits to projectors, by result.");
  text.Add("result=\"answered\"", quint64{counts.visits.answered});
  text.Add("result=\"unanswered\"", quint64{counts.visits.unanswered});
  text.Add("result=\"abandoned\"", quint64{counts.visits.abandoned});
  AddAnswers(text, counts.answers);
  text.Begin("projector_bridge_messages_total", "counter",
             "Messages that the broker has got, by kind.");
  AddCounts(text, "kind", counts.messages);
  text.Begin("projector_bridge_commands_total", "counter", "Commands received, by outcome.");
  AddCounts(text, "outcome", counts.commands);
  gauge("process_resident_memory_bytes", "Memory of the process.", quint64{counts.residentBytes});
  text.Begin("process_cpu_seconds_total", "counter", "Processor time of the process.");
  text.Add({}, counts.processorSeconds);
}

void MeasureProcess(BridgeCounts& counts) {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  counts.processorSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
  if (FILE* const file = std::fopen("/proc/self/statm", "re")) {
    unsigned long all = 0;
    unsigned long resident = 0;
    if (std::fscanf(file, "%lu %lu", &all, &resident) == 2) {
      counts.residentBytes = std::uint64_t{resident} * static_cast<std::uint64_t>(getpagesize());
    }
    std::fclose(file);
  }
}

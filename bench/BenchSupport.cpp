#include "bench/BenchSupport.h"

#include <algorithm>
#include <thread>

#include <QApplication>
#include <QEvent>

#include "device/CommandCode.h"

namespace {

// Two alternating values for each setting. Settings not listed get values near their zero point.
struct Answers {
  std::uint16_t code;
  std::int16_t values[2];
};
constexpr Answers kAnswers[] = {
    {CommandCode::RunningState, {1, 2}},  {CommandCode::InputSource, {3, 4}},
    {CommandCode::ErrorStatus, {0, 8}},   {CommandCode::BlankState, {0, 1}},
    {CommandCode::Mute, {0, 1}},          {CommandCode::Freeze, {0, 1}},
    {CommandCode::LampTime, {120, 121}},  {CommandCode::FilterTime, {80, 81}},
    {CommandCode::Gamma, {16, 17}},       {CommandCode::ColorTemp, {17, 18}},
    {CommandCode::Sharpness, {127, 128}}, {CommandCode::ActiveIris, {0x10, 0x11}},
};
constexpr Answers kOtherAnswers{0, {128, 130}};

void Add(CountedList& list, int value, const char* name) {
  const auto index = static_cast<std::size_t>(list.count++);
  list.values[index] = value;
  list.names[index] = MakeNameSlot(name);
}

// The last part of a delay is spent spinning, because a sleep may overshoot by about this much.
constexpr std::chrono::microseconds kSpun{300};

void WaitUntil(Clock::time_point time) {
  std::this_thread::sleep_until(time - kSpun);
  while (Clock::now() < time) {
  }
}

}  // namespace

PjtReply AnsweringChannel::Execute(const PjtCommand& command) {
  if (delay_ != Clock::duration::zero()) {
    const auto start = Clock::now();
    WaitUntil(start + delay_);
    work_.seconds += SecondsSince(start);
  }
  ++work_.commands;
  const auto* found = std::ranges::find(kAnswers, command.code, &Answers::code);
  const Answers& answers = found == std::end(kAnswers) ? kOtherAnswers : *found;
  return {.result = AcceptedResult(command.operation),
          .value = answers.values[static_cast<unsigned>(round_.load()) % 2]};
}

CModelInfo2 MakeFullModel(int dialogType, int modelCode) {
  CModelInfo2 model;
  model.ModelName = "Benchmark";
  model.DialogType = dialogType;
  model.ModelCode = modelCode;
  for (const char* name : {"Computer 1", "Computer 2", "Component", "HDMI 1", "HDMI 2", "LAN"}) {
    SourceList& sources = model.MySourceList;
    const auto index = static_cast<std::size_t>(sources.count);
    sources.names[index] = MakeNameSlot(name);
    sources.firstValues[index] = sources.count++;
  }
  for (const char* name : {"Normal", "Whisper"}) {
    Add(model.WhisperList, model.WhisperList.count, name);
  }
  for (const char* name : {"4:3", "16:9", "14:9", "16:10", "Normal"}) {
    Add(model.AspectList, model.AspectList.count, name);
  }
  for (const int value : {32, 16, 33, 17, 34, 18, 35, 19, 36, 20}) {
    Add(model.GammaList, value, "Gamma");
  }
  for (const int value : {1, 17, 2, 18, 3, 19}) Add(model.ColorTempList, value, "Color");
  for (int value = 0; value < 7; ++value) Add(model.MyButtonList, value, "Button");
  return model;
}

PaintWatch::PaintWatch() { qApp->installEventFilter(this); }

bool PaintWatch::eventFilter(QObject*, QEvent* event) {
  painted_ = painted_ || event->type() == QEvent::Paint;
  return false;
}

bool PaintWatch::RunUntilPainted() {
  const auto deadline = Clock::now() + std::chrono::seconds(1);
  while (!painted_ && Clock::now() < deadline) QCoreApplication::processEvents();
  QCoreApplication::processEvents();  // runs the updates that layouts have requested
  return std::exchange(painted_, false);
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

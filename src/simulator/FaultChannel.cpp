#include "simulator/FaultChannel.h"

namespace AdvancedControl {

namespace {

template <typename Key>
void Store(std::map<Key, Fault>& faults, Key key, const Fault& fault) {
  if (fault.kind == Fault::Kind::None) {
    faults.erase(key);
  } else {
    faults[key] = fault;
  }
}

}  // namespace

template <typename Edit>
void FaultChannel::Change(Edit edit) {
  const std::lock_guard lock(mutex_);
  edit();
  changed_.notify_all();
}

void FaultChannel::SetFault(const Fault& fault) {
  Change([&] { forAll_ = fault; });
}

void FaultChannel::SetFault(PjtOperation operation, const Fault& fault) {
  Change([&] { Store(byOperation_, operation, fault); });
}

void FaultChannel::SetFault(std::uint16_t code, const Fault& fault) {
  Change([&] { Store(byCode_, code, fault); });
}

void FaultChannel::Clear() {
  Change([&] {
    forAll_ = {};
    byOperation_.clear();
    byCode_.clear();
  });
}

Fault FaultChannel::FaultOf(const PjtCommand& command) const {
  if (FormOf(command.operation).isGeneric) {
    if (const auto found = byCode_.find(command.code); found != byCode_.end()) {
      return found->second;
    }
  }
  const auto found = byOperation_.find(command.operation);
  return found == byOperation_.end() ? forAll_ : found->second;
}

void FaultChannel::Wait(std::unique_lock<std::mutex>& lock, const PjtCommand& command,
                        const Fault& fault, std::chrono::milliseconds time) {
  changed_.wait_for(lock, time, [&] { return FaultOf(command) != fault; });
}

PjtReply FaultChannel::Execute(const PjtCommand& command) {
  const PjtReply refusal{.result = RefusedResult(command.operation)};
  std::unique_lock lock(mutex_);
  const Fault fault = FaultOf(command);
  if (fault.kind == Fault::Kind::Refuse) return refusal;
  if (fault.kind == Fault::Kind::FailRead && IsRead(command.operation)) return refusal;
  if (fault.kind == Fault::Kind::Late) Wait(lock, command, fault, fault.delay);
  if (fault.kind == Fault::Kind::DropOut) {
    Wait(lock, command, fault, dropOut_);
    return {.result = refusal.result, .answered = false};
  }
  lock.unlock();
  return Inner().Execute(command);
}

}  // namespace AdvancedControl

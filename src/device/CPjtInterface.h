#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ProjectorCommonExport.h"
#include "device/CComCtrl.h"
#include "device/CSocketCtrl.h"
#include "device/ProjectorChannel.h"

/// The connection to one projector and every operation it offers.
///
/// Each operation builds one `PjtCommand`, hands it to the channel and returns when the channel
/// does. The channel is the host's, or else one of the object's own, made as the connection
/// parameters say. Copies share it. Without a channel every operation is refused. What each form of
/// operation takes and returns is listed with the forms below; a refused operation writes nothing
/// through its pointer. Values are device values; the pages own every bias.
class PROJECTOR_COMMON_EXPORT CPjtInterface {
 public:
  CPjtInterface();
  CPjtInterface(const CPjtInterface& other);
  CPjtInterface& operator=(const CPjtInterface& other);
  ~CPjtInterface();

  /// The host's way to the projector, which goes before the object's own, whenever it is set. Null
  /// takes the channel away, until connection parameters are taken again.
  void SetChannel(std::shared_ptr<ProjectorChannel> channel);
  const std::shared_ptr<ProjectorChannel>& Channel() const { return channel_; }

  /// While cut off, every operation is refused and reaches no channel.
  void CutOff(bool cutOff) { cutOff_ = cutOff; }

  /// How the connection stands.
  ConnectionState Connection() const;

  /// The inputs as the projector itself has told them, over PJLink; nothing as long as it has not.
  /// From the first call on they are asked for while nobody waits.
  std::optional<SourceList> Inputs() const;

  /// The power state as the projector told it last, as `ProjectorChannel::Power` says.
  std::optional<PowerState> Power() const;

  /// Takes the connection parameters. A text ends at its first zero or after 64 characters; null is
  /// an empty text.
  ///
  /// Unless the host has set a channel, the object connects by itself with its first command:
  /// - Kind 1 is a network connection to the name or address `text1`, port `parameter`. On port
  ///   4352, or where `parameter` is 0, it speaks PJLink with `text2` as the password; on any other
  ///   port the wire of docs/wire.md. "pjlink://" or "tcp://" before the address says it outright.
  /// - Any other kind is a serial connection with `parameter` bits per second, 0 for 19200, on the
  ///   port `number`, which counts from 0 ("/dev/ttyS0"), or on the device whose path is `text1`.
  ///
  /// Parameters that name no connection leave every operation unanswered at once, and `Connection`
  /// says so.
  void CopyData(int kind, int number, int parameter, const char* text1, const char* text2);

  /// Take the model's aspect and gamma device values, in list order. At most 32 are kept; a null
  /// list or a negative count is an empty one. The result is the number kept.
  int CopyAspectData(int count, const int* values);
  int CopyGammaData(int count, const int* values);

  int ConnectionKind() const { return connectionKind_; }
  int ConnectionNumber() const { return connectionNumber_; }
  int ConnectionParameter() const { return connectionParameter_; }
  const std::string& ConnectionText1() const { return connectionText1_; }
  const std::string& ConnectionText2() const { return connectionText2_; }
  const CComCtrl& Serial() const { return serial_; }
  const CSocketCtrl& Network() const { return network_; }
  const std::vector<std::int32_t>& AspectValues() const { return aspectValues_; }
  const std::vector<std::int32_t>& GammaValues() const { return gammaValues_; }

  /// Written by the dialog when it opens; carried for the connection.
  std::int32_t HostOption = 0;
  std::int32_t DialogType = 0;
  /// Text of the list entry that a page is about to send; pages write it and never read it.
  std::string SettingText;

  // The named operations, declared in the form of their family.

#define PJT_FORM_Action(name) int name();
#define PJT_FORM_CheckedReset(name) int name();
#define PJT_FORM_PointReset(name) int name(int point);
#define PJT_FORM_SilentAction(name) void name();
#define PJT_FORM_PointerGetter(name) int name(short* value);
#define PJT_FORM_IntSetter(name) int name(int value);
#define PJT_FORM_ShortSetter(name) int name(short value);
#define PJT_FORM_FlaggedSetter(name) int name(short value, int flag);
#define PJT_FORM_SilentSetter(name) void name(int value);
#define PJT_FORM_SilentFlaggedSetter(name) void name(int value, int flag);
#define PJT_FORM_PointerStepper(name) int name(short* value);
#define PJT_FORM_SourceGetter(name) int name(int source, short* value);
#define PJT_FORM_SourceStepper(name) int name(int source, short* value);
#define PJT_FORM_SourceSetter(name) int name(int source, short value);
#define PJT_FORM_ShortSourceSetter(name) int name(short source, short value);
#define PJT_FORM_DirectGetter(name) short name();          // 0 when the read fails.
#define PJT_FORM_PointGetter(name) short name(int point);  // 0 when the read fails.
#define PJT_FORM_ChannelStepper(name) short name(int channel, short value);  // `value` if refused.
#define PJT_FORM_GenericGetter(name)
#define PJT_FORM_GenericSetter(name)
#define PJT_FORM_GenericStepper(name)
#define PJT_OPERATION(name, family, number) PJT_FORM_##family(name)
#include "device/PjtOperations.def"
#undef PJT_FORM_Action
#undef PJT_FORM_CheckedReset
#undef PJT_FORM_PointReset
#undef PJT_FORM_SilentAction
#undef PJT_FORM_PointerGetter
#undef PJT_FORM_IntSetter
#undef PJT_FORM_ShortSetter
#undef PJT_FORM_FlaggedSetter
#undef PJT_FORM_SilentSetter
#undef PJT_FORM_SilentFlaggedSetter
#undef PJT_FORM_PointerStepper
#undef PJT_FORM_SourceGetter
#undef PJT_FORM_SourceStepper
#undef PJT_FORM_SourceSetter
#undef PJT_FORM_ShortSourceSetter
#undef PJT_FORM_DirectGetter
#undef PJT_FORM_PointGetter
#undef PJT_FORM_ChannelStepper
#undef PJT_FORM_GenericGetter
#undef PJT_FORM_GenericSetter
#undef PJT_FORM_GenericStepper

  /// The same steps with the caller's value instead of a pointer: the new value, or `value` when
  /// the projector refused.
  short IncrementAutoPowerOff(short value);
  short DecrementAutoPowerOff(short value);

  // The generic operations, by command code. `self` is the object called through.
  // Exactly 1 is success, though some callers take any result but 0 for it: `Get` then stores the
  // value as well. `Inc` and `Dec` step by one; read the setting afterwards with `Get`.
  int Get(unsigned short code, unsigned short argument, CPjtInterface* self, unsigned short* value);
  int Set(unsigned short code, unsigned short value, CPjtInterface* self);
  int Inc(unsigned short code, unsigned short argument, CPjtInterface* self);
  int Dec(unsigned short code, unsigned short argument, CPjtInterface* self);

  /// Any of the operations as a command, with the reply as the channel gave it.
  PjtReply Execute(const PjtCommand& command) const;

  /// Tells the channel which reads are about to follow, in this order.
  void Announce(std::span<const PjtCommand> reads) const;

  /// Gives up what is under way: the command that waits ends at once, and as long as the result
  /// lives, which may outlive the object, every command is unanswered without being sent. Called
  /// from inside the event loop of a command that waits.
  [[nodiscard]] std::shared_ptr<const void> Abandon();
  bool IsAbandoned() const;
  /// Whether a command of this object is under way.
  bool IsWaiting() const;

  /// The next command is tried, also where the channel spares a projector that was silent.
  void TryAfresh();

  /// What became of the commands so far; each number only grows.
  struct Tally {
    int commands = 0;
    int refused = 0;
    int unanswered = 0;  ///< Those that were abandoned apart.
    int notOffered = 0;  ///< Refused, because the projector has no such setting.
    int busy = 0;        ///< Refused, because the projector cannot do it now.
    int pending = 0;     ///< Changes that were accepted, and not carried out yet.
    int uncertain = 0;   ///< Unanswered changes that may have been carried out all the same.
  };
  Tally Sent() const;

 private:
  /// What is under way belongs to one object: a copy starts with none of it, and assignment leaves
  /// it. Shared with the commands under way, which may outlive the object.
  struct Traffic;
  class OwnTraffic {
   public:
    OwnTraffic();
    OwnTraffic(const OwnTraffic&) : OwnTraffic() {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to assign
    OwnTraffic& operator=(const OwnTraffic&) { return *this; }
    ~OwnTraffic() = default;
    std::shared_ptr<Traffic> now;
  };

  int ExecuteInto(const PjtCommand& command, short* value) const;
  short ExecuteFor(const PjtCommand& command, short otherwise) const;

  std::shared_ptr<ProjectorChannel> channel_;
  OwnTraffic traffic_;
  bool isHosts_ = false;
  bool cutOff_ = false;
  int connectionKind_ = 0;
  int connectionNumber_ = 0;
  int connectionParameter_ = 0;
  std::string connectionText1_;
  std::string connectionText2_;
  CComCtrl serial_;
  CSocketCtrl network_;
  std::vector<std::int32_t> aspectValues_;
  std::vector<std::int32_t> gammaValues_;
};

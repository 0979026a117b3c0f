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
/// Each operation builds one `PjtCommand`, passes it to the channel and returns when the channel
/// does. The channel is the one that the host has set; otherwise the object makes its own from the
/// connection parameters. Copies share the channel. Without a channel every operation is refused.
/// The forms below list what each form of operation takes and returns; a refused operation writes
/// nothing through its pointer. Values are device values; biases are left to the pages.
///
/// Call it from the thread on which its channel may be called, in a dialog the user-interface
/// thread.
class PROJECTOR_COMMON_EXPORT CPjtInterface {
 public:
  CPjtInterface();
  CPjtInterface(const CPjtInterface& other);
  CPjtInterface& operator=(const CPjtInterface& other);
  ~CPjtInterface();

  /// Sets the host's channel, which replaces the object's own, whether it is set before or after
  /// the connection parameters. Null removes the channel until `CopyData` is called again. A
  /// command that waits in the channel before keeps waiting for its reply; `Abandon` ends that wait
  /// too.
  void SetChannel(std::shared_ptr<AdvancedControl::ProjectorChannel> channel);
  const std::shared_ptr<AdvancedControl::ProjectorChannel>& Channel() const { return channel_; }

  /// While cut off, every operation is refused without reaching the channel.
  void CutOff(bool cutOff) { cutOff_ = cutOff; }

  /// The state of the connection.
  AdvancedControl::ConnectionState Connection() const;

  /// The inputs that the projector has reported over PJLink; nothing until then. From the first
  /// call on, the channel asks for them while no command waits.
  std::optional<AdvancedControl::SourceList> Inputs() const;

  /// The power state that the projector reported last, see `ProjectorChannel::Power`.
  std::optional<AdvancedControl::PowerState> Power() const;

  /// Sets the connection parameters. A text ends at its first zero or after 64 characters; null is
  /// an empty text.
  ///
  /// Unless the host has set a channel, the object connects by itself with its first command:
  /// - Kind 1 is a network connection to the name or address `text1`, port `parameter`. On port
  ///   4352, or if `parameter` is 0, it speaks PJLink with `text2` as the password; on any other
  ///   port the protocol of docs/wire.md. A prefix "pjlink://" or "tcp://" of the address overrides
  ///   this choice.
  /// - Any other kind is a serial connection with `parameter` bits per second, 0 for 19200, on the
  ///   port `number`, which counts from 0 ("/dev/ttyS0"), or on the device whose path is `text1`.
  ///
  /// With invalid parameters every operation is unanswered at once, and `Connection` returns
  /// `ConnectionState::WrongParameters`.
  void CopyData(int kind, int number, int parameter, const char* text1, const char* text2);

  /// Copy the model's aspect and gamma device values, in list order. At most 32 are kept; a null
  /// list or a negative count counts as empty. Return the number of values kept.
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

  /// Written by the dialog when it opens, for the use of the connection.
  std::int32_t HostOption = 0;
  std::int32_t DialogType = 0;
  /// Text of the list entry that a page is about to send. Written by pages, for the use of the
  /// connection.
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

  /// The same steps without a pointer: return the new value, or `value` if the projector refused.
  short IncrementAutoPowerOff(short value);
  short DecrementAutoPowerOff(short value);

  // The generic operations, by command code. `self` is the object itself. Only the result 1 is
  // success. `Get` stores the value for any nonzero result, because some callers accept those as
  // well. `Inc` and `Dec` step by one; read the setting with `Get` afterwards.
  int Get(unsigned short code, unsigned short argument, CPjtInterface* self, unsigned short* value);
  int Set(unsigned short code, unsigned short value, CPjtInterface* self);
  int Inc(unsigned short code, unsigned short argument, CPjtInterface* self);
  int Dec(unsigned short code, unsigned short argument, CPjtInterface* self);

  /// Executes any operation given as a command, and returns the channel's reply unchanged.
  AdvancedControl::PjtReply Execute(const AdvancedControl::PjtCommand& command) const;

  /// Announces to the channel which reads are about to follow, in this order.
  void Announce(std::span<const AdvancedControl::PjtCommand> reads) const;

  /// Abandons the work under way: the waiting command ends at once, whichever channel it waits in,
  /// and as long as the returned object lives, every command is unanswered without being sent. The
  /// returned object may outlive this one. Called from inside the event loop of a waiting command.
  [[nodiscard]] std::shared_ptr<const void> Abandon();
  bool IsAbandoned() const;
  /// Whether a command of this object is under way.
  bool IsWaiting() const;

  /// Makes the channel try the next command even if the projector was silent.
  void AllowRetry();

  /// The results of the commands so far. The counters only grow.
  struct Tally {
    int commands = 0;
    int refused = 0;
    int unanswered = 0;  ///< Without those that were abandoned.
    int notOffered = 0;  ///< Refused because the projector does not have the setting.
    int busy = 0;        ///< Refused because the projector cannot do it now.
    int pending = 0;     ///< Changes that were accepted but have not taken effect yet.
    int uncertain = 0;   ///< Unanswered changes that may have been carried out.
  };
  Tally Sent() const;

 private:
  /// The commands under way. They belong to one object: a copy starts without any, and assignment
  /// does not change them. Shared with those commands, which may outlive the object.
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

  int ExecuteInto(const AdvancedControl::PjtCommand& command, short* value) const;
  short ExecuteFor(const AdvancedControl::PjtCommand& command, short otherwise) const;

  std::shared_ptr<AdvancedControl::ProjectorChannel> channel_;
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

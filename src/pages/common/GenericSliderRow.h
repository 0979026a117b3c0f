#pragma once

#include <cstdint>

#include "device/CPjtInterface.h"
#include "pages/common/SliderRow.h"

/// What came of a user's change.
enum class Outcome : std::uint8_t {
  NotSent,  ///< The row was at its bound; nothing was sent.
  Accepted,
  Refused,
};

/// A slider row whose setting is reached by a command code with the generic operations.
class GenericSliderRow : public SliderRow {
 public:
  struct Setting {
    std::uint16_t code;
    int bias;         ///< Device value that is shown as zero.
    int errorNumber;  ///< Catalog number of the refusal's text.
  };

  void Bind(const CDialog& dialog, const tmpl::SliderIds& ids, const Setting& setting);

  int ErrorNumber() const { return setting_.errorNumber; }
  int Bias() const { return setting_.bias; }

  /// Reads the projector: shows the value, or disables the row when the read fails.
  void Refresh(CPjtInterface& projector);

  /// One step of the projector inside `bounds`, then its value read back and shown. A refused step
  /// puts the slider back; a failed read-back leaves the row as it is.
  Outcome StepUp(CPjtInterface& projector, Range bounds);
  Outcome StepDown(CPjtInterface& projector, Range bounds);

  /// Sends the slider's position with the generic `Set`; on success the row remembers and shows it.
  /// The slider then goes to the remembered value, so a refused change snaps back.
  Outcome SendPosition(CPjtInterface& projector);

 private:
  bool Read(CPjtInterface& projector);
  void FinishStep(CPjtInterface& projector, bool accepted);

  Setting setting_{};
};

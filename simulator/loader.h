// The controller's loader as a state machine: bytes in, bytes out, the memory it programs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "simulator/device_end.h"
#include "simulator/flash.h"
#include "simulator/record.h"

namespace keplin::simulator {

// How a record ended. Its character stands in the reply between the echo and the CR LF.
enum class Outcome : char {
    Obeyed = '.',
    NoDigit = 'H',        // a character within the record is no hexadecimal digit
    WrongChecksum = 'S',  // the checksum is wrong
    UnknownType = 'T',    // the record's type is none of 00 to 03
    UnknownForm = 'F',    // the type is known, its byte count, address or data are not
    NotCalibrated = 'N',  // an erase or data before a calibration
    NotErased = 'W',      // data for a cell that is not erased
    BeyondMemory = 'R',   // data for a cell beyond FFFF
};

// Answers a ping with a ping. Echoes a record character by character as it comes and, when it is
// complete, ends the reply with the Outcome's character and CR LF. A character that breaks a record
// is not echoed: the NoDigit line follows at once. Everything else outside records is ignored.
class Loader final : public DeviceEnd {
  public:
    void Receive(std::uint8_t byte, std::vector<SentByte>& answer) override;

    // Power lost and back: not calibrated, no record under way. Memory and the obeyed records stay.
    void Restart();

    [[nodiscard]] bool Calibrated() const { return calibrated_; }
    [[nodiscard]] Flash& Memory() { return flash_; }
    [[nodiscard]] const Flash& Memory() const { return flash_; }

    // The records obeyed, as they came, in order.
    [[nodiscard]] const std::vector<std::string>& ObeyedRecords() const { return obeyed_; }

  private:
    Outcome Judge(const Record& record);
    Outcome Program(const Record& record);
    Outcome EndOfFile(const Record& record);
    Outcome Calibrate(const Record& record);
    Outcome Erase(const Record& record);
    void EndReply(Outcome outcome, std::vector<SentByte>& answer);

    Flash flash_;
    RecordFrame frame_;
    bool calibrated_ = false;
    std::vector<std::string> obeyed_;
};

}  // namespace keplin::simulator

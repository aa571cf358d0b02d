#include "simulator/loader.h"

#include <array>

namespace keplin::simulator {

void Loader::Receive(std::uint8_t byte, std::vector<SentByte>& answer) {
    const Heard heard = frame_.Take(byte);
    if (heard == Heard::Other) return;
    if (heard == Heard::Broken) return EndReply(Outcome::NoDigit, answer);
    answer.push_back({byte});
    if (heard == Heard::Complete) EndReply(Judge(Record(frame_.Text())), answer);
}

void Loader::Restart() {
    calibrated_ = false;
    frame_.Reset();
}

Outcome Loader::Judge(const Record& record) {
    using Handler = Outcome (Loader::*)(const Record&);
    static constexpr std::array<Handler, 4> kByType{&Loader::Program, &Loader::EndOfFile,
                                                    &Loader::Calibrate, &Loader::Erase};
    if (!record.ChecksumRight()) return Outcome::WrongChecksum;
    if (record.Type() >= kByType.size()) return Outcome::UnknownType;
    return (this->*kByType[record.Type()])(record);
}

Outcome Loader::Program(const Record& record) {
    if (!calibrated_) return Outcome::NotCalibrated;
    if (record.Address() + record.Data().size() > Flash::kSize) return Outcome::BeyondMemory;
    return flash_.Write(record.Address(), record.Data()) ? Outcome::Obeyed : Outcome::NotErased;
}

Outcome Loader::EndOfFile(const Record& record) {
    return record.Data().empty() ? Outcome::Obeyed : Outcome::UnknownForm;
}

Outcome Loader::Calibrate(const Record& record) {
    constexpr std::uint8_t kSetting = 0x0C;
    const auto data = record.Data();
    if (record.Address() != 0 || data.size() != 1 || data[0] != kSetting) {
        return Outcome::UnknownForm;
    }
    calibrated_ = true;
    return Outcome::Obeyed;
}

Outcome Loader::Erase(const Record& record) {
    if (!calibrated_) return Outcome::NotCalibrated;
    const auto block = BlockToErase(record);
    if (!block) return Outcome::UnknownForm;
    flash_.Erase(*block);
    return Outcome::Obeyed;
}

void Loader::EndReply(Outcome outcome, std::vector<SentByte>& answer) {
    if (outcome == Outcome::Obeyed) obeyed_.emplace_back(frame_.Text());
    for (const char character : {static_cast<char>(outcome), '\r', '\n'}) {
        answer.push_back({static_cast<std::uint8_t>(character)});
    }
}

}  // namespace keplin::simulator

// A controller with faults: the honest loader, and what happens to its replies on the way.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "simulator/faults.h"
#include "simulator/loader.h"
#include "simulator/record.h"

namespace keplin::simulator {

// What one fault did in one exchange.
struct Injection {
    int exchange = 0;  // counted from 1
    FaultKind kind = FaultKind::Silence;
    std::string honest;  // the loader's own reply; empty when the fault kept the bytes from it
    std::string sent;    // the reply that went out instead, without any babble
};

// Counts exchanges from 1 as the loader sees them: each ping and each record is one, and so is each
// run of other bytes between them. In an exchange with a fault the reply goes out as a whole, when
// the record is complete or broken. The loader hears and does what it was sent, except under
// Refused (a ping is heard there too), HangUp, PowerLost and PowerLostHalf.
//
// Babble starts with the exchange's first byte. From a fault "onwards" it never ends; from a fault
// in one exchange it ends with the start of the next one, or after kBabbleBytes. The byte that is
// on the wire as it ends still reaches the host.
//
// A hang-up strikes at the exchange's first byte. From a fault in one exchange the device is back
// as soon as the line has closed, and takes part in the next line; from a fault "onwards" it is
// back after ClearFaults.
class FaultyDevice final : public DeviceEnd {
  public:
    static constexpr std::size_t kBabbleBytes = 8192;  // 2.1 s on the wire

    // `loader` must outlive the device, and be restarted only between exchanges. `faults`: see
    // Inject.
    FaultyDevice(Loader& loader, std::uint32_t seed, std::vector<FaultAt> faults = {})
        : loader_(loader), random_(seed), faults_(std::move(faults)) {}

    // Adds a fault. Where two strike at the same exchange, the one added first does.
    void Inject(FaultAt fault) { faults_.push_back(fault); }
    // No fault from the next exchange on. Babble and hang-up end at once.
    void ClearFaults();
    // Hangs up now, whatever is under way, and is back as soon as the line has closed.
    void HangUp() { hungUp_ = comesBack_ = true; }

    [[nodiscard]] int ExchangesSeen() const { return exchanges_; }
    // One for each exchange that a fault struck, in order. An injection's texts are there when its
    // exchange is over.
    [[nodiscard]] const std::vector<Injection>& Injections() const { return injections_; }

    void Receive(std::uint8_t byte, std::vector<SentByte>& answer) override;
    void LineIdle(std::vector<SentByte>& answer) override;
    [[nodiscard]] bool HungUp() const override { return hungUp_; }
    void LineClosed() override;

  private:
    [[nodiscard]] bool Begins(Heard heard) const;
    void BeginExchange();
    void Strike(FaultAt fault);
    void Hold(Heard heard, std::uint8_t byte);
    void Refuse(Heard heard, std::uint8_t byte);
    void EndExchange(Heard heard, std::vector<SentByte>& answer);
    void LosePower(Heard heard);

    Loader& loader_;
    Random random_;
    std::vector<FaultAt> faults_;
    std::vector<Injection> injections_;
    int exchanges_ = 0;

    RecordFrame frame_;
    std::optional<Heard> previous_;      // the byte before, as far as it belongs to this line
    std::optional<FaultKind> underWay_;  // the fault of the exchange under way
    Reply held_;                         // the reply of that exchange so far
    std::size_t babbleLeft_ = 0;         // bytes
    bool hungUp_ = false;
    bool comesBack_ = false;  // by itself, when the line has closed
};

}  // namespace keplin::simulator

#include "simulator/faults.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace keplin::simulator {
namespace {

using std::chrono::milliseconds;

std::uint8_t AnyByte(Random& random) {
    return static_cast<std::uint8_t>(Below(random, 256));
}

SentByte& AnyOf(Reply& reply, Random& random) {
    return reply[Below(random, static_cast<std::uint32_t>(reply.size()))];
}

void Keep(Reply& /*reply*/, Random& /*random*/) {}

void Silence(Reply& reply, Random& /*random*/) {
    reply.clear();
}

void DropByte(Reply& reply, Random& random) {
    if (reply.empty()) return;
    reply.erase(reply.begin() + (&AnyOf(reply, random) - reply.data()));
}

void FlipBit(Reply& reply, Random& random) {
    if (reply.empty()) return;
    AnyOf(reply, random).value ^= static_cast<std::uint8_t>(1u << Below(random, 8));
}

void LowerCase(Reply& reply, Random& /*random*/) {
    for (SentByte& byte : reply) {
        if (byte.value >= 'A' && byte.value <= 'Z') byte.value |= 0x20;
    }
}

void PutByteFirst(Reply& reply, Random& random) {
    SentByte stray{AnyByte(random)};
    if (!reply.empty() && stray.value == reply.front().value) stray.value ^= 0xFF;
    reply.insert(reply.begin(), stray);
}

void DropDot(Reply& reply, Random& /*random*/) {
    std::erase_if(reply, [](SentByte byte) { return byte.value == '.'; });
}

void DelayDot(Reply& reply, Random& random) {
    const auto before = reply.size();
    DropDot(reply, random);
    if (reply.size() != before) reply.push_back({'.'});
}

void DropLineFeed(Reply& reply, Random& /*random*/) {
    std::erase_if(reply, [](SentByte byte) { return byte.value == '\n'; });
}

void SlowDown(Reply& reply, Random& random) {
    for (SentByte& byte : reply) {
        byte.rest = milliseconds{100 + Below(random, 301)};
    }
}

void AddNoise(Reply& reply, Random& random) {
    for (auto left = 1 + Below(random, 8); left > 0; --left) {
        reply.push_back({AnyByte(random)});
    }
}

constexpr auto kFaults = std::to_array<Fault>({
    {FaultKind::Silence, "silence", "no answer", Silence},
    {FaultKind::ByteDropped, "byte-dropped", "one byte of the reply is lost", DropByte},
    {FaultKind::BitFlipped, "bit-flipped", "one bit of the reply is turned over", FlipBit},
    {FaultKind::LowerCase, "lower-case", "the reply's letters come in lower case", LowerCase},
    {FaultKind::ByteFirst, "byte-first", "another byte comes ahead of the reply", PutByteFirst},
    {FaultKind::NoDot, "no-dot", "the reply has no \".\"", DropDot},
    {FaultKind::LateDot, "late-dot", "the \".\" comes only after the line feed", DelayDot},
    {FaultKind::NoLineFeed, "no-line-feed", "the reply has no line feed", DropLineFeed},
    {FaultKind::Babble, "babble", "bytes without a line feed and without end", Silence},
    {FaultKind::Slow, "slow", "the reply comes with a pause of 0.1 to 0.4 s before each byte",
     SlowDown},
    {FaultKind::Noise, "noise", "stray bytes follow right behind the reply", AddNoise},
    {FaultKind::Refused, "refused", "the record is not obeyed, and a letter replaces the \".\"",
     Keep},
    {FaultKind::HangUp, "hang-up", "the line hangs up", Silence},
    {FaultKind::PowerLost, "power-lost", "power is lost and comes back; an erase did not happen",
     Silence},
    {FaultKind::PowerLostHalf, "power-lost-half",
     "power is lost and comes back; an erase was done by half", Silence},
});

static_assert([] {
    for (std::size_t i = 0; i < kFaults.size(); ++i) {
        if (static_cast<std::size_t>(kFaults[i].kind) != i) return false;
    }
    return true;
}());

}  // namespace

std::span<const Fault> FaultTable() {
    return kFaults;
}

const Fault& FaultOf(FaultKind kind) {
    return kFaults[static_cast<std::size_t>(kind)];
}

std::optional<FaultAt> ParseFault(std::string_view text) {
    const auto at = text.find('@');
    const auto fault = std::ranges::find(kFaults, text.substr(0, at), &Fault::name);
    if (at == std::string_view::npos || fault == kFaults.end()) return std::nullopt;

    std::string_view number = text.substr(at + 1);
    FaultAt result{fault->kind, 0, number.ends_with('+')};
    if (result.onwards) number.remove_suffix(1);
    const char* const end = number.data() + number.size();
    const auto read = std::from_chars(number.data(), end, result.exchange);
    if (read.ec != std::errc{} || read.ptr != end || result.exchange < 1) return std::nullopt;
    return result;
}

}  // namespace keplin::simulator

#pragma once

#include <compare>

/// The one-byte name of a media drive that DiskManager keeps for a volume while the
/// process runs, so that a choice survives rescans. kAuto names no drive in
/// particular: the system chooses.
class DriveId {
public:
    static constexpr char kAuto = '0';

    constexpr DriveId() = default;
    constexpr explicit DriveId(char id) : id_(id) {}

    constexpr char value() const { return id_; }
    constexpr bool isAuto() const { return id_ == kAuto; }

    constexpr auto operator<=>(const DriveId&) const = default;

private:
    char id_ = kAuto;
};

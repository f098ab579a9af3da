#pragma once

#include "reader/Reader.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Zel {
class IView;
}

namespace viewer {

/// Files from this size on are read behind a waiting dialog, bytes.
constexpr std::uintmax_t largeFile = 4'000'000;

/// Whether the record's files together are large.
bool isLarge(const std::string& file);

/// Reads the record on a thread of its own, behind a dialog over the parent's window that tells how far it is
/// and can be cancelled. A progress callback of the options is called as well, on that thread. What the
/// reader throws is thrown here; cancelling, also by Escape, throws `record::Cancelled`. What else is to be
/// done with the samples may be done by `prepare`, on that thread, too; it has ended when this returns.
record::Record loadBehindDialog(Zel::IView& parent, const std::string& file, record::Options options,
                                const std::function<void(record::Record&)>& prepare = {});

} // namespace viewer

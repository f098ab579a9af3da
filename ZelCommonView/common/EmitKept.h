/// Emission of a signal whose listeners may destroy its owner.
#pragma once

namespace Zel {

/// Emits `signal` with `values` and returns what it returns. A listener may destroy the signal with its
/// owner: a signal that goes in the middle of its own emission loses memory for each listener, unless a copy,
/// which shares them, outlives the emission. The caller touches nothing of the owner afterwards.
template <typename TSignal, typename... TValues>
auto emitKept(const TSignal& signal, TValues... values) {
    const TSignal kept = signal; // NOLINT(performance-unnecessary-copy-initialization)
    return kept.emit(values...);
}

} // namespace Zel

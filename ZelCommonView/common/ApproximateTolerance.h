#pragma once

namespace Zel {

/// How far apart two numbers may lie and still count as equal: `relative` times the largest of both and
/// `scale`. Left at zero it lets only equal numbers be equal.
struct ApproximateTolerance {
    /// The permitted difference as a share of the size of the numbers.
    double relative = 0.0;
    /// The size below which numbers are compared as if they were of that size, so that values around zero can
    /// match.
    double scale = 0.0;
};

} // namespace Zel

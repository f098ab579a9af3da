#pragma once

namespace viewer {

/// A stretch of time, seconds on the record's axis.
struct Interval {
    double from = 0;
    double to = 0;
};

/// The stretch moved so that the time is its middle, as far as it doesn't reach out of a record from 0 to
/// `duration`. It keeps its length, at most that of the record.
Interval centred(const Interval& seen, double time, double duration);

} // namespace viewer

#pragma once

#include "Moment.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace record {

/// One stretch of a record with a constant rate.
struct Rate {
    /// Samples each second; 0 where only the time stamps tell.
    double hertz = 0;
    /// How many samples the record holds up to the end of this stretch.
    std::uint64_t end = 0;
};

/// A place where the time stamps leap: forward over a pause, or backward.
struct Gap {
    /// The position of the sample after the leap.
    std::size_t position = 0;
    /// The step from the sample before, in seconds; negative where time goes back.
    double seconds = 0;
};

/// When each sample was taken, in seconds from the start of the record. A record can tell it twice: by its
/// rates, which are computed by position and cost no memory, and by the time stamp of each sample.
class TimeAxis {
public:
    enum class Rule {
        Rates,
        Stamps,
        /// Neither is there: the axis counts samples from 0.
        Numbers
    };

    TimeAxis() = default;

    /// Picks the rates where every stretch has one, else the stamps, else the numbers. `ticks` holds one
    /// value for each sample, NaN where it is missing; counters of 16 or 32 bits that wrapped are made
    /// continuous. `unit` is the length of a tick in seconds. Without any tick the stamps count as absent.
    TimeAxis(std::size_t samples, const std::vector<Rate>& rates, std::vector<double> ticks, double unit);

    std::size_t size() const { return count; }

    Rule rule() const { return chosen; }

    /// Changes the rule behind at(). A rule that this record can't serve is ignored.
    void setRule(Rule rule);

    bool hasRates() const { return !segments.empty(); }

    bool hasStamps() const { return !stamps.empty(); }

    /// Seconds, or the number of the sample where the rule is Numbers. The position must lie below size().
    double at(std::size_t position) const;
    /// Needs hasRates().
    double byRates(std::size_t position) const;

    /// Needs hasStamps(). A stamp that was missing in the file lies between its neighbours.
    double byStamps(std::size_t position) const { return stamps[position]; }

    /// The first position whose time is not before the given one; size() when there is none. Where time goes
    /// back, any position that fits.
    std::size_t positionAt(double time) const;

    std::size_t missingStamps() const { return missing; }

    /// The first thousand leaps of the stamps.
    const std::vector<Gap>& gaps() const { return leaps; }

    std::size_t gapCount() const { return leapCount; }

    /// How far the stamps run away from the rates at worst, in samples of the stretch; 0 unless both are
    /// there.
    double worstDifference() const { return difference; }

private:
    struct Segment {
        std::size_t first = 0;
        double start = 0;
        double hertz = 0;
    };

    void setSegments(const std::vector<Rate>& rates);
    void setStamps(std::vector<double> ticks, double unit);
    void findGaps();
    void compare();
    double typicalStep() const;

    std::size_t count = 0;
    Rule chosen = Rule::Numbers;
    std::vector<Segment> segments;
    std::vector<double> stamps;
    std::size_t missing = 0;
    std::vector<Gap> leaps;
    std::size_t leapCount = 0;
    double difference = 0;
};

} // namespace record

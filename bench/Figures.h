// What a series of measurements says.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace bench {

class Figures {
public:
    void add(double value) { values_.insert(std::ranges::upper_bound(values_, value), value); }
    bool empty() const { return values_.empty(); }
    // `share` from 0, the smallest value, to 1, the largest.
    double at(double share) const {
        return values_.at(
            static_cast<std::size_t>(share * static_cast<double>(values_.size() - 1)));
    }
    double median() const { return at(0.5); }

private:
    std::vector<double> values_; // in rising order
};

// Prints a line on the values.
inline void tell(const std::string& name, const Figures& values, const char* unit) {
    std::cout << std::fixed << std::setprecision(2) << std::left << std::setw(46) << name
              << std::right << "median " << std::setw(7) << values.median() << "  95% "
              << std::setw(7) << values.at(0.95) << "  max " << std::setw(7) << values.at(1) << " "
              << unit << std::endl;
}

// Prints how `value` keeps its promise, and whether it does.
inline bool keeps(const std::string& promise, double value, double atMost) {
    const bool kept = value <= atMost;
    std::cout << (kept ? "kept:   " : "BROKEN: ") << promise << ": " << value << ", at most "
              << atMost << std::endl;
    return kept;
}

} // namespace bench

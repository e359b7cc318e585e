// Whether plays of six are drawn with the same chance for every set of numbers.
#pragma once

#include <cmath>
#include <vector>

namespace bench {

// Counts the plays of six out of the numbers 1 to `pool`.
class PlayTally {
public:
    explicit PlayTally(int pool)
        : n_(pool), numbers_(at(pool) + 1), pairs_((at(pool) + 1) * (at(pool) + 1)) {}

    // The numbers in rising order.
    void add(const std::vector<int>& play) {
        ++plays_;
        for (std::size_t i = 0; i < play.size(); ++i) {
            ++numbers_.at(at(play[i]));
            for (std::size_t j = i + 1; j < play.size(); ++j)
                ++pairs_.at(at(play[i]) * (at(n_) + 1) + at(play[j]));
        }
    }

    // How many standard deviations the count of a number lies from its expected value. The count
    // is binomial.
    double deviation(int number) const {
        const double chance = kDrawn / n_;
        return surplus(number) / std::sqrt(plays_ * chance * (1 - chance));
    }

    // The chi-squared statistic of all pairs as a standard normal deviate.
    //
    // The pairs of one play depend on each other, so the plain sum of squares has no chi-squared
    // distribution. The covariance of two pairs has three values only: a of a pair with itself, b
    // of two pairs with a number in common, c of two without. Such a matrix has, beside the
    // constant vector (whose variance is 0, as each play has 15 pairs), two eigenspaces: the sums
    // of one share a number, n - 1 dimensions with the variance a + (n-4)b - (n-3)c, and the rest,
    // n(n-3)/2 dimensions with the variance a - 2b + c. The counts are split into the two parts,
    // and each is measured by its own variance.
    double pairDeviation() const {
        const double n = n_, k = kDrawn;
        const double two = k * (k - 1) / (n * (n - 1)); // the chance of both numbers of a pair
        const double three = two * (k - 2) / (n - 2);
        const double four = three * (k - 3) / (n - 3);
        const double a = two - two * two, b = three - two * two, c = four - two * two;
        double shares = 0, rest = 0;
        for (int i = 1; i <= n_; ++i)
            for (int j = i + 1; j <= n_; ++j) {
                const auto count = pairs_[at(i) * (at(n_) + 1) + at(j)];
                const double share = (k - 1) * (surplus(i) + surplus(j)) / (n - 2);
                shares += share * share;
                rest += std::pow(static_cast<double>(count) - plays_ * two - share, 2);
            }
        const double chiSquared =
            shares / (plays_ * (a + (n - 4) * b - (n - 3) * c)) + rest / (plays_ * (a - 2 * b + c));
        const double freedom = n - 1 + n * (n - 3) / 2;
        // Wilson and Hilferty: the cube root is very nearly normal.
        return (std::cbrt(chiSquared / freedom) - (1 - 2 / (9 * freedom))) /
               std::sqrt(2 / (9 * freedom));
    }

private:
    static constexpr double kDrawn = 6;
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }

    double surplus(int number) const {
        return static_cast<double>(numbers_.at(at(number))) - plays_ * kDrawn / n_;
    }

    int n_;
    double plays_ = 0;
    std::vector<long> numbers_;
    std::vector<long> pairs_; // by the smaller number, then the larger one
};

} // namespace bench

// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace zelvia::bench
{

using Clock = std::chrono::steady_clock;

/// Milliseconds that `work` takes.
template <typename Work>
double MillisecondsOf(Work&& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// The quantile of the samples: 0.5 is the median. There must be a sample.
inline double Quantile(std::vector<double> samples, double part)
{
    const auto place = static_cast<std::size_t>(part * static_cast<double>(samples.size() - 1));
    std::nth_element(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(place), samples.end());
    return samples[place];
}

/// What was measured and its baseline, alternating, so that a slow moment of the machine affects both.
struct Samples {
    std::vector<double> measured;
    std::vector<double> baseline;
};

/// Alternates the two, after one round that isn't counted. Each returns its sample.
template <typename Measured, typename Baseline>
Samples Alternate(int rounds, Measured&& measured, Baseline&& baseline)
{
    Samples samples;
    for (int round = 0; round <= rounds; ++round) {
        const double first = measured();
        const double second = baseline();
        if (round > 0) {
            samples.measured.push_back(first);
            samples.baseline.push_back(second);
        }
    }
    return samples;
}

/// Prints a row of the table: name, measured, baseline, their ratio, the figure to hold.
inline void PrintRow(const char* name, double measured, double baseline, const char* unit, const char* figure)
{
    std::printf("%-46s %9.3f %s %9.3f %s %7.2f   %s\n", name, measured, unit, baseline, unit, measured / baseline,
                figure);
    std::fflush(stdout);
}

inline void PrintMedians(const char* name, const Samples& samples, const char* unit, const char* figure)
{
    PrintRow(name, Quantile(samples.measured, 0.5), Quantile(samples.baseline, 0.5), unit, figure);
}

/// The plain reading that readers are measured against.
inline std::size_t BytesByLines(const std::string& path)
{
    std::size_t bytes = 0;
    std::ifstream file(path, std::ios::binary);
    std::string line;
    while (std::getline(file, line)) {
        bytes += line.size();
    }
    return bytes;
}

} // namespace zelvia::bench

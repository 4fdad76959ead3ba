#include "Figures.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t fewestRounds = 3;
constexpr std::size_t mostRounds = 1001;

double secondsOf(const Figures::Step& step) {
    const Clock::time_point start = Clock::now();
    step();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double quantile(std::vector<double> values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

/// Calls `round` as long as there is time, and at least a few times.
template <class Round>
void repeat(double seconds, Round round) {
    const Clock::time_point start = Clock::now();
    const auto isOver = [&] { return std::chrono::duration<double>(Clock::now() - start).count() >= seconds; };
    for (std::size_t done = 0; done < mostRounds; ++done) {
        const bool isEnough = seconds == 0 ? done > 0 : done >= fewestRounds && isOver();
        if (isEnough) {
            return;
        }
        round(done);
    }
}

void tell(QJsonObject figure, const QString& name, int entries) {
    figure.insert(QStringLiteral("figure"), name);
    figure.insert(QStringLiteral("entries"), entries);
    std::puts(QJsonDocument(figure).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

} // namespace

void Figures::ratio(const QString& name, const Step& work, const Step& floor, const Step& before, int times) const {
    std::vector<double> works;
    std::vector<double> floors;
    std::vector<double> ratios;
    const auto timed = [&before](const Step& step) {
        before();
        return secondsOf(step);
    };
    repeat(m_seconds, [&](std::size_t round) {
        // Who goes first may find caches cold.
        const bool isFloorFirst = round % 2 == 0;
        const double first = timed(isFloorFirst ? floor : work);
        const double second = timed(isFloorFirst ? work : floor);
        works.push_back(isFloorFirst ? second : first);
        floors.push_back(isFloorFirst ? first : second);
        ratios.push_back(works.back() / floors.back());
    });
    tell({{QStringLiteral("ratio"), quantile(ratios, 0.5)},
          {QStringLiteral("low"), quantile(ratios, 0.25)},
          {QStringLiteral("high"), quantile(ratios, 0.75)},
          {QStringLiteral("seconds"), quantile(works, 0.5) / times},
          {QStringLiteral("floor"), quantile(floors, 0.5) / times},
          {QStringLiteral("rounds"), static_cast<int>(ratios.size())}},
         name, m_entries);
}

void Figures::time(const QString& name, const Step& work, double times) const {
    std::vector<double> works;
    repeat(m_seconds, [&](std::size_t) { works.push_back(secondsOf(work) / times); });
    tell({{QStringLiteral("seconds"), quantile(works, 0.5)},
          {QStringLiteral("low"), quantile(works, 0.25)},
          {QStringLiteral("high"), quantile(works, 0.75)},
          {QStringLiteral("rounds"), static_cast<int>(works.size())}},
         name, m_entries);
}

void Figures::number(const QString& name, double number, const QString& unit) const {
    tell({{unit, number}}, name, m_entries);
}

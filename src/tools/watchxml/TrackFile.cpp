// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watchxml/TrackFile.h"

#include "core/Tr.h"

#include <QDateTime>
#include <QTimeZone>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace zelvia
{
namespace
{

/// A moment as the file writes it.
struct Moment {
    double time = 0; ///< Seconds since 1970, UTC.
    std::optional<int> offset;
};

std::optional<Moment> MomentOf(const QString& text)
{
    QDateTime moment = QDateTime::fromString(text.trimmed(), Qt::ISODateWithMs);
    if (!moment.isValid()) {
        return std::nullopt;
    }
    if (moment.timeSpec() == Qt::LocalTime) {
        moment.setTimeZone(QTimeZone::utc()); // No zone: both formats mean UTC.
    }
    constexpr double thousand = 1000;
    return Moment{static_cast<double>(moment.toMSecsSinceEpoch()) / thousand,
                  moment.timeSpec() == Qt::OffsetFromUTC ? std::optional(moment.offsetFromUtc()) : std::nullopt};
}

std::optional<double> NumberOf(QStringView text)
{
    bool good = false;
    const double number = text.trimmed().toDouble(&good);
    constexpr double limit = 1e9;
    return good && number > -limit && number < limit ? std::optional(number) : std::nullopt;
}

/// The way between two places along the surface of the earth, in metres.
double Distance(const Place& one, const Place& other)
{
    constexpr double radius = 6'371'008.8;
    constexpr double degree = std::numbers::pi / 180;
    const double north = std::sin((other.latitude - one.latitude) * degree / 2);
    const double east = std::sin((other.longitude - one.longitude) * degree / 2);
    const double square =
        north * north + std::cos(one.latitude * degree) * std::cos(other.latitude * degree) * east * east;
    return 2 * radius * std::asin(std::min(std::sqrt(square), 1.0));
}

struct Point {
    std::optional<Moment> moment;
    std::optional<double> metres;
    std::optional<Place> place;
};

/// Puts an activity together of its points.
class Builder
{
public:
    explicit Builder(std::string sport) : sport_(std::move(sport)) {}

    void SetSport(const QString& sport) { sport_ = sport.trimmed().toLower().toStdString(); }
    void SetStart(const Moment& start) { start_ = start_.value_or(start); }

    /// The watch was stopped before the next point.
    void Break() { broken_ = true; }

    void Add(const Point& point)
    {
        if (!point.moment) {
            return;
        }
        SetStart(*point.moment);
        const double seconds = point.moment->time - start_->time;
        if (point.place) {
            walked_ += lastPlace_ && !broken_ ? Distance(*lastPlace_, *point.place) : 0;
            lastPlace_ = point.place;
            activity_.place = activity_.place ? activity_.place : point.place;
        }
        if (broken_ && last_ && seconds > *last_) {
            activity_.pauses.push_back({*last_, seconds});
        }
        broken_ = false;
        last_ = std::max(last_.value_or(0), seconds);
        if (point.metres || point.place) {
            track_.push_back({seconds, point.metres.value_or(walked_)});
        }
    }

    void AddLap(const std::optional<Moment>& start, double moving, double metres)
    {
        if (start) {
            activity_.laps.push_back({static_cast<std::int64_t>(std::floor(start->time)), moving, moving, metres});
        }
    }

    std::optional<Activity> Finish()
    {
        if (!start_ || std::abs(start_->time) > 1e12) {
            return std::nullopt;
        }
        activity_.sport = sport_;
        activity_.start = static_cast<std::int64_t>(std::floor(start_->time));
        activity_.offset = start_->offset;
        activity_.elapsed = last_.value_or(0);
        if (activity_.laps.empty()) {
            SumTrack();
        } else {
            SumLaps();
        }
        activity_.moving = std::min(activity_.moving, activity_.elapsed);
        DropContradictingPauses(activity_);
        activity_.track = PlausibleTrack(track_, activity_.elapsed);
        return IsPlausible(activity_) ? std::optional(std::move(activity_)) : std::nullopt;
    }

private:
    void SumTrack()
    {
        activity_.moving = activity_.elapsed;
        for (const Pause& pause : activity_.pauses) {
            activity_.moving -= pause.to - pause.from;
        }
        activity_.moving = std::max(activity_.moving, 0.0);
        for (const TrackPoint& point : track_) {
            activity_.metres = std::max(activity_.metres, point.metres);
        }
    }

    /// A lap lasts until the next one starts.
    void SumLaps()
    {
        std::vector<Lap>& laps = activity_.laps;
        for (std::size_t i = 0; i < laps.size(); ++i) {
            activity_.moving += laps[i].moving;
            activity_.metres += laps[i].metres;
            const double next = i + 1 < laps.size() ? static_cast<double>(laps[i + 1].start)
                                                    : static_cast<double>(activity_.start) + activity_.elapsed;
            laps[i].elapsed = std::max(laps[i].moving, next - static_cast<double>(laps[i].start));
        }
        const double end = static_cast<double>(laps.back().start - activity_.start) + laps.back().elapsed;
        activity_.elapsed = std::max({activity_.elapsed, activity_.moving, end});
    }

    Activity activity_;
    std::string sport_;
    std::optional<Moment> start_;
    std::vector<TrackPoint> track_;
    std::optional<Place> lastPlace_;
    std::optional<double> last_; ///< Seconds of the latest point.
    double walked_ = 0;
    bool broken_ = false;
};

/// Walks the elements of either format; what it does not know it passes over, however deep.
class Reader
{
public:
    explicit Reader(std::string_view bytes)
        : xml_(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())))
    {
    }

    WatchFile Read()
    {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement: Start(); break;
            case QXmlStreamReader::Characters: text_ += xml_.text(); break;
            case QXmlStreamReader::EndElement: End(); break;
            default: break;
            }
        }
        if (xml_.hasError()) {
            file_.faults.push_back(xml_.error() == QXmlStreamReader::PrematureEndOfDocumentError
                                       ? Tools::Tr("il file è troncato")
                                       : Tools::Tr("il file è rovinato alla riga %1", xml_.lineNumber()));
            EndLap();
        }
        EndActivity();
        return std::move(file_);
    }

private:
    QString Attribute(const char* name) const { return xml_.attributes().value(QLatin1String(name)).toString(); }

    void Start()
    {
        const QStringView name = xml_.name();
        text_.clear();
        ++depth_;
        if (name == u"Activity" || name == u"trk") {
            EndActivity();
            activity_.emplace(Attribute("Sport").toLower().toStdString());
            activityDepth_ = depth_;
        } else if (!activity_) {
            return;
        } else if (name == u"Lap") {
            EndLap();
            lap_ = LapTexts{MomentOf(Attribute("StartTime")), {}, {}, false};
            if (lap_->start) {
                activity_->SetStart(*lap_->start);
            }
        } else if (name == u"trkseg" || (name == u"Track" && lap_ && std::exchange(lap_->begun, true))) {
            activity_->Break();
        } else if (name == u"Trackpoint") {
            point_ = Point{};
        } else if (name == u"trkpt") {
            point_ = Point{};
            TakePlace(NumberOf(Attribute("lat")), NumberOf(Attribute("lon")));
        }
    }

    void End()
    {
        const QStringView name = xml_.name();
        const int depth = depth_--;
        if (!activity_) {
            return;
        }
        if (name == u"Activity" || name == u"trk") {
            EndActivity();
        } else if (name == u"Trackpoint" || name == u"trkpt") {
            if (point_) {
                activity_->Add(*point_);
            }
            point_.reset();
        } else if (point_) {
            EndInPoint(name);
        } else if (name == u"type" && depth == activityDepth_ + 1) {
            activity_->SetSport(text_);
        } else if (lap_) {
            EndInLap(name);
        }
    }

    void EndInPoint(QStringView name)
    {
        if (name == u"Time" || name == u"time") {
            point_->moment = MomentOf(text_);
        } else if (name == u"DistanceMeters") {
            point_->metres = NumberOf(text_);
        } else if (name == u"LatitudeDegrees") {
            latitude_ = NumberOf(text_);
        } else if (name == u"LongitudeDegrees") {
            TakePlace(latitude_, NumberOf(text_));
        }
    }

    void EndInLap(QStringView name)
    {
        if (name == u"TotalTimeSeconds") {
            lap_->seconds = NumberOf(text_);
        } else if (name == u"DistanceMeters") {
            lap_->metres = NumberOf(text_);
        } else if (name == u"Lap") {
            EndLap();
        }
    }

    void TakePlace(std::optional<double> latitude, std::optional<double> longitude)
    {
        if (point_ && latitude && longitude && std::abs(*latitude) <= 90 && std::abs(*longitude) <= 180) {
            point_->place = Place{*latitude, *longitude};
        }
    }

    void EndLap()
    {
        if (lap_ && activity_ && lap_->seconds && *lap_->seconds >= 0) {
            activity_->AddLap(lap_->start, *lap_->seconds, std::max(lap_->metres.value_or(0), 0.0));
        }
        lap_.reset();
    }

    void EndActivity()
    {
        if (activity_) {
            if (auto activity = activity_->Finish()) {
                file_.activities.push_back(std::move(*activity));
            }
        }
        activity_.reset();
        lap_.reset();
        point_.reset();
    }

    struct LapTexts {
        std::optional<Moment> start;
        std::optional<double> seconds;
        std::optional<double> metres;
        bool begun = false; ///< Its first track was seen; a further one comes after a pause.
    };

    QXmlStreamReader xml_;
    QString text_;
    WatchFile file_;
    std::optional<Builder> activity_;
    std::optional<LapTexts> lap_;
    std::optional<Point> point_;
    std::optional<double> latitude_;
    int depth_ = 0;
    int activityDepth_ = 0;
};

} // namespace

bool IsXml(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    bytes.remove_prefix(bytes.starts_with(mark) ? mark.size() : 0);
    const std::size_t begin = bytes.find_first_not_of(" \t\r\n");
    return begin != std::string_view::npos && bytes[begin] == '<';
}

WatchFile ReadTrackFile(std::string_view bytes)
{
    return Reader(bytes).Read();
}

} // namespace zelvia

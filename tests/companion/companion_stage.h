#pragma once

#include "companion/feed/lookups.h"
#include "companion/feed/pacer.h"
#include "companion/feed/sky_feed.h"
#include "core/config/shared_state.h"
#include "paint/font_measurer.h"
#include "platform/files/files.h"
#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/session/wait_for.h"
#include "tests/support/certificate_authority.h"
#include "tests/support/https_server.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/service_hosts.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QTimer>

#include <time.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

inline constexpr const char* feedPath = "/v2/point/";
inline constexpr const char* secondFeedPath = "/api/v2/lat/";

/// A feed's answer with an airliner, a military aircraft and one in an emergency.
inline constexpr const char* threeAircraft = R"({"ac":[
  {"hex":"a1b2c3","flight":"UAL123  ","r":"N123UA","t":"A320","alt_baro":35000,"gs":452.3,"track":45,
   "baro_rate":1216,"squawk":"1200","lat":51.6,"lon":-0.2,"seen_pos":1,"dst":5.2,"dir":45.0},
  {"hex":"ae0001","flight":"RCH285","t":"C17","alt_baro":24000,"gs":400,"track":270,"dbFlags":1,
   "lat":51.7,"lon":-0.3,"dst":9.1,"dir":300},
  {"hex":"~4ca7b4","r":"EI-ABC","t":"C172","alt_baro":1800,"squawk":"7700","lat":51.4,"lon":-0.1,
   "dst":12.0,"dir":170}]})";

/// The sources in one server, and a home folder of its own.
class CompanionStage {
public:
    CompanionStage() { setHome(); }

    static void setHome(double radiusNM = 25, const std::string& unit = "km")
    {
        SharedState::write({
            .home = {.latitude = 51.5, .longitude = -0.12, .label = "Home"},
            .radiusNM = radiusNM,
            .distanceUnit = unit,
        });
    }

    /// The requests for targets that begin so.
    std::size_t asked(const std::string& prefix) const
    {
        const auto requests = server.requests();
        return static_cast<std::size_t>(std::ranges::count_if(
            requests, [&](const RecordedRequest& request) { return request.target.starts_with(prefix); }));
    }

    /// Answers targets that begin so when the server is released.
    void stall(const std::string& prefix)
    {
        server.handle(prefix, [](const RecordedRequest&, Connection& connection) { connection.stall(); });
    }

    ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path() / "home"}};
    Pinned<Locale> locale{{.numbers = "en_US", .times = "en_GB", .timeZone = "UTC"}};
    CertificateAuthority authority{scratch.path() / "authority.pem"};
    HttpsServer server{authority, serviceHosts()};
    Pinned<Network> network{server.network()};
    Pacer pacer{UrlSession{}, {.rest = std::chrono::milliseconds{20}}};
    DecodePhoto decode = decodePhotoBy(SKYVANE_PHOTO);
    Errands errands;
    FontMeasurer fonts;
};

/// How long the event loop came to nothing, at worst.
class StallMeter {
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.callOnTimeout([this] { m_longest = std::max(m_longest, m_clock.restart()); });
        m_clock.start();
        m_timer.start(5);
    }

    std::chrono::milliseconds longest() const { return std::chrono::milliseconds{m_longest}; }

private:
    QElapsedTimer m_clock;
    QTimer m_timer;
    qint64 m_longest = 0;
};

/// The processor's time that the longest turn of the event loop took: what a busy machine does not lengthen.
class TurnMeter {
public:
    TurnMeter()
    {
        m_timer.callOnTimeout([this] {
            const auto now = ownTime();
            m_longest = std::max(m_longest, now - std::exchange(m_last, now));
        });
        m_timer.start(0);
    }

    std::chrono::milliseconds longest() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(m_longest);
    }

private:
    static std::chrono::nanoseconds ownTime()
    {
        timespec spent{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
        return std::chrono::seconds{spent.tv_sec} + std::chrono::nanoseconds{spent.tv_nsec};
    }

    QTimer m_timer;
    std::chrono::nanoseconds m_last = ownTime();
    std::chrono::nanoseconds m_longest{0};
};

/// A picture of that size in one colour, as a file's bytes.
inline std::string picture(const QSize& size, const char* format)
{
    QImage image{size, QImage::Format_RGB32};
    image.fill(QColor{0x30, 0x60, 0xa0});
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes.toStdString();
}

} // namespace skyvane::test

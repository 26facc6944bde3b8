#include "tests/session/sway_session.h"

#include "tests/session/wait_for.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <tuple>
#include <unistd.h>

namespace skyvane::test {

namespace {

QRect rectOf(const QJsonObject& node)
{
    const QJsonObject rect = node["rect"].toObject();
    return {rect["x"].toInt(), rect["y"].toInt(), rect["width"].toInt(), rect["height"].toInt()};
}

/// Of all windows on view.
void collectWindows(const QJsonObject& node, std::vector<QJsonObject>& windows)
{
    if (node["pid"].toInt() != 0 && node["visible"].toBool())
        windows.push_back(node);
    for (const char* key : {"nodes", "floating_nodes"}) {
        for (const QJsonValue child : node[QLatin1String{key}].toArray())
            collectWindows(child.toObject(), windows);
    }
}

} // namespace

SwaySession::SwaySession()
{
    const QString folder = QString::fromStdString(m_folder.path().string());
    m_environment.insert("PATH", qEnvironmentVariable("PATH"));
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR"})
        m_environment.insert(name, folder);
    m_environment.insert("WLR_BACKENDS", "headless");
    m_environment.insert("WLR_RENDERER", "pixman");
    m_environment.insert("WLR_LIBINPUT_NO_DEVICES", "1");
    m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder + "/none");
    m_environment.insert("QT_QPA_PLATFORM", "xcb");
    const auto configuration = m_folder.path() / "config";
    std::ofstream{configuration} << "xwayland enable\noutput * resolution 1280x720\n";

    m_compositor.setProcessEnvironment(m_environment);
    m_compositor.setStandardOutputFile(QProcess::nullDevice());
    m_compositor.setStandardErrorFile(QProcess::nullDevice());
    QStringList words{"sway", "--config", QString::fromStdString(configuration.string())};
    if (::geteuid() == 0) // As whom it refuses to run; its X server lets in only users that the system knows.
        words = QStringList{"unshare", "--user", "--map-user=nobody", "--map-group=nogroup"} + words;
    m_compositor.start(words.takeFirst(), words);
    const QDir place{folder};
    const QStringList sockets{"sway-ipc.*.sock"};
    const bool isUp = waitFor([&] {
        const QStringList found = place.entryList(sockets, QDir::System);
        m_environment.insert("SWAYSOCK", place.filePath(found.value(0)));
        return !found.isEmpty() && outputs().size() == 1;
    });
    if (!isUp)
        throw std::runtime_error{"no compositor"};
}

SwaySession::~SwaySession()
{
    m_compositor.terminate();
    if (!m_compositor.waitForFinished(10000)) {
        m_compositor.kill();
        m_compositor.waitForFinished();
    }
}

QJsonDocument SwaySession::tell(const QStringList& words) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start("swaymsg", QStringList{"--raw"} + words);
    process.waitForFinished();
    return QJsonDocument::fromJson(process.readAllStandardOutput());
}

void SwaySession::start(const QString& program, const QStringList& words) const
{
    tell({"exec", program + " " + words.join(' ') + " >/dev/null"});
}

std::vector<QRect> SwaySession::windows() const
{
    std::vector<QJsonObject> nodes;
    collectWindows(tell({"--type", "get_tree"}).object(), nodes);
    std::vector<QRect> found;
    std::transform(nodes.begin(), nodes.end(), std::back_inserter(found), rectOf);
    std::sort(found.begin(), found.end(), [](const QRect& a, const QRect& b) {
        return std::tuple{b.width(), b.height()} < std::tuple{a.width(), a.height()};
    });
    return found;
}

QStringList SwaySession::titles() const
{
    std::vector<QJsonObject> nodes;
    collectWindows(tell({"--type", "get_tree"}).object(), nodes);
    QStringList found;
    for (const QJsonObject& node : nodes)
        found += node["name"].toString();
    return found;
}

QStringList SwaySession::outputs() const
{
    QStringList names;
    for (const QJsonValue output : tell({"--type", "get_outputs"}).array()) {
        if (output.toObject()["active"].toBool())
            names += output.toObject()["name"].toString();
    }
    return names;
}

} // namespace skyvane::test

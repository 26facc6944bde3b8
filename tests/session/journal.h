#pragma once

#include <QDebug>

#include <string>
#include <vector>

namespace skyvane::test {

/// The warnings of its lifetime.
class Journal {
public:
    Journal()
    {
        lines().clear();
        m_outer = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtWarningMsg)
                lines().push_back(text.toStdString());
        });
    }
    ~Journal() { qInstallMessageHandler(m_outer); }
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    static std::vector<std::string>& lines()
    {
        static std::vector<std::string> told;
        return told;
    }

private:
    QtMessageHandler m_outer;
};

} // namespace skyvane::test

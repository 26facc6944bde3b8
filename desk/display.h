#pragma once

#include <QMessageLogContext>
#include <QString>

#include <string>
#include <vector>

namespace skyvane {

/// The display that a program's windows are to be shown on, as the environment names it.
class Display {
public:
    /// Reads the environment, which the program may change afterwards. `program`: its name.
    explicit Display(std::string program);

    /// Whether a display that the environment names can be connected to now.
    static bool isReachable();

    /// Makes the application. Where there is no display, for which the toolkit dumps core, the program ends
    /// with one line on standard error and exit status 1; so it does when its display goes later.
    template <class Application>
    Application open(int& argc, char** argv) const
    {
        endWithDisplay();
        const Attempt attempt{*this};
        return Application{argc, argv};
    }

private:
    static void endWithDisplay();

    struct Message {
        QtMsgType type;
        const char* category;
        QString text;
    };

    /// Holds back what the toolkit says, until it has found a display.
    class Attempt {
    public:
        explicit Attempt(const Display& display);
        ~Attempt();
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;

    private:
        static Attempt*& current();
        static void receive(QtMsgType type, const QMessageLogContext& context, const QString& text);

        const Display& m_display;
        QtMessageHandler m_before;
        std::vector<Message> m_messages;
    };

    std::string m_absence; ///< The message that there is no display.
};

} // namespace skyvane

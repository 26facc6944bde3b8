#include "platform/net/transfer_error.h"

#include "platform/text/localized.h"

namespace skyvane {

namespace {

std::string withoutBlanksAtItsEnd(const std::string& text)
{
    return text.substr(0, text.find_last_not_of(" \t\r\n") + 1);
}

} // namespace

std::string description(TransferProblem problem)
{
    switch (problem) {
    case TransferProblem::nameUnknown:
        return localized("The server's name was not found; there may be no internet connection.");
    case TransferProblem::noRoute:
        return localized("There is no way to the server; there may be no internet connection.");
    case TransferProblem::refused:
        return localized("The server refuses connections.");
    case TransferProblem::timedOut:
        return localized("The server did not answer in time.");
    case TransferProblem::untrusted:
        return localized("The server's certificate is not trusted.");
    case TransferProblem::insecure:
        return localized("No secure connection to the server came about.");
    case TransferProblem::cut:
        return localized("The connection was cut before the answer was complete.");
    case TransferProblem::tooLarge:
        return localized("The answer is too large.");
    case TransferProblem::unreadable:
        return localized("The answer cannot be read.");
    case TransferProblem::other:
        break;
    }
    return localized("The request failed.");
}

TransferError::TransferError(TransferProblem why, const std::string& said)
    : std::runtime_error(description(why)), problem(why), details(withoutBlanksAtItsEnd(said))
{
}

} // namespace skyvane

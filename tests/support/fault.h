#pragma once

#include "tests/support/https_server.h"

#include <string>
#include <vector>

namespace skyvane::test {

/// One way in which a source can go wrong.
struct Fault {
    enum class Certificate { good, expired, selfSigned, forAnotherName };
    enum class Outcome {
        delivered, ///< After all, the good answer.
        refused, ///< A whole answer with a status that does not count.
        failed, ///< No whole answer, or nonsense in it.
    };

    std::string name;
    HttpsServer::Handler handler{}; ///< None: nobody listens.
    HttpsServer::Greeting greeting{};
    Certificate certificate = Certificate::good;
    Outcome outcome = Outcome::failed;
    std::string words = "."; ///< Of the failure; a regular expression.
    bool isSlow = false; ///< Lasts until the client has had enough.
};

/// What every one of the services would be content with.
extern const char* const goodAnswer;

/// All of them, in groups.
std::vector<Fault> faults();
std::vector<Fault> connectionFaults();
std::vector<Fault> answerFaults();
std::vector<Fault> compressionFaults();
std::vector<Fault> contentFaults();

} // namespace skyvane::test

#pragma once

#include "platform/json/value.h"
#include "protocol/answer.h"

#include <QProcess>

#include <chrono>
#include <filesystem>
#include <string>

/// Why there is no answer, in words.
namespace skyvane::ExtensionFailures {

std::string notStarted(const std::filesystem::path& program);
std::string ended(QProcess::ExitStatus status);
/// Again and again.
std::string stopsAtEachRequest();
std::string noAnswer(std::chrono::milliseconds timeout);
std::string nonsense(const JSON::DecodingError& error);
std::string refused(const Protocol::Refused& error);

} // namespace skyvane::ExtensionFailures

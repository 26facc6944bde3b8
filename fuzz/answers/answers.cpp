#include "fuzz/fuzzer.h"
#include "host/extension/answer_lines.h"
#include "host/extension/error.h"
#include "protocol/answer.h"
#include "protocol/request.h"

#include <type_traits>

namespace {

using namespace skyvane;

template <class Decode>
void tryTo(Decode decode)
{
    try {
        decode();
    } catch (const JSON::DecodingError&) {
        // What is of another shape is refused.
    }
}

template <class... Call>
void readAsResultOf(std::type_identity<std::variant<Call...>>, JSON::Value result)
{
    (tryTo([&] { Protocol::read<typename Call::Result>(result); }), ...);
}

void readAsEverything(const QByteArray& line)
{
    const JSON::Document document{{line.data(), static_cast<std::size_t>(line.size())}};
    const std::int64_t id = Protocol::answeredID(document.root());
    try {
        readAsResultOf(std::type_identity<Protocol::AnyCall>{}, Protocol::resultOf(document.root(), id));
    } catch (const Protocol::Refused&) {
        // What the extension refuses is told.
    }
}

} // namespace

/// What a stranger's extension says to the host.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    AnswerLines lines;
    lines.add(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    try {
        while (const auto line = lines.next())
            tryTo([&] { readAsEverything(*line); });
    } catch (const ExtensionError&) {
        // The host starts such an extension afresh.
    }
    return 0;
}

#include "core/config/shared_state.h"
#include "fuzz/fuzzer.h"
#include "platform/files/files.h"
#include "platform/json/value.h"
#include "platform/pinned.h"
#include "protocol/limits.h"
#include "tests/support/scratch_folder.h"
#include "widgets/extension/serve.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace {

using namespace skyvane;

/// A home folder with a home set.
class Home {
public:
    Home() { SharedState::write({.home = {.latitude = 51.5, .longitude = 0, .label = "X"}, .radiusNM = 9}); }

private:
    test::ScratchFolder m_folder{};
    Pinned<HomeFolder> m_pinned{{.path = m_folder.path()}};
};

/// A file in memory, in place of a stream.
class Stream {
public:
    Stream() : m_descriptor(memfd_create("stream", MFD_CLOEXEC)) { fuzz::require(m_descriptor >= 0); }
    ~Stream() { close(m_descriptor); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    int descriptor() const { return m_descriptor; }

    void put(std::string_view bytes) const
    {
        const auto size = static_cast<ssize_t>(bytes.size());
        fuzz::require(pwrite(m_descriptor, bytes.data(), bytes.size(), 0) == size);
    }

    std::string content() const
    {
        std::string bytes(static_cast<std::size_t>(lseek(m_descriptor, 0, SEEK_END)), '\0');
        const auto size = static_cast<ssize_t>(bytes.size());
        fuzz::require(pread(m_descriptor, bytes.data(), bytes.size(), 0) == size);
        return bytes;
    }

private:
    int m_descriptor;
};

URLResponse oneAircraft(const URLRequest&, const std::stop_token& stop)
{
    if (stop.stop_requested())
        throw CancellationError{};
    return {.status = 200, .body = R"({"ac":[{"hex":"abc001","lat":51.6,"lon":0,"dst":3,"dir":9}]})"};
}

/// A whole JSON-RPC answer: what was asked for or an error, never both.
void requireAnswer(std::string_view line)
{
    fuzz::require(line.size() <= Protocol::Limits::longestAnswer);
    const JSON::Document document{line};
    JSON::Value value;
    fuzz::require(JSON::string(document.root()["jsonrpc"]) == "2.0");
    fuzz::require(document.root()["id"].get(value) == simdjson::SUCCESS);
    const bool hasResult = document.root()["result"].get(value) == simdjson::SUCCESS;
    const bool hasError = document.root()["error"]["code"].get(value) == simdjson::SUCCESS;
    fuzz::require(hasResult != hasError);
}

} // namespace

/// What a host says to the extension, from the first byte to the end of the input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Home home;
    const Stream input;
    const Stream output;
    input.put(fuzz::text(data, size));
    Extension::serve(input.descriptor(), output.descriptor(), {.transport = &oneAircraft});
    const std::string answers = output.content();
    std::string_view rest = answers;
    for (std::size_t end = 0; (end = rest.find('\n')) != std::string_view::npos; rest.remove_prefix(end + 1))
        requireAnswer(rest.substr(0, end));
    fuzz::require(rest.empty());
    return 0;
}

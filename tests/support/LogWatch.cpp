#include "support/LogWatch.h"

#include <gtest/gtest.h>

#include <glib.h>

#include <atomic>
#include <mutex>

namespace test {

namespace {

std::mutex mutex;
std::string expectedText;
bool isExpectedSeen = false;

GLogWriterOutput write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
    if (!(level & (G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_ERROR)))
        return G_LOG_WRITER_HANDLED;

    std::string message;
    for (gsize i = 0; i < count; ++i)
        if (std::string(fields[i].key) == "MESSAGE")
            message = static_cast<const char*>(fields[i].value);
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!expectedText.empty() && message.find(expectedText) != std::string::npos) {
            isExpectedSeen = true;
            return G_LOG_WRITER_HANDLED;
        }
    }
    ADD_FAILURE() << "a library complained: " << message;
    return G_LOG_WRITER_HANDLED;
}

} // namespace

void watchLog() {
    g_log_set_writer_func(write, nullptr, nullptr);
}

ExpectedLog::ExpectedLog(std::string value) : text(std::move(value)) {
    const std::lock_guard<std::mutex> lock(mutex);
    expectedText = text;
    isExpectedSeen = false;
}

ExpectedLog::~ExpectedLog() {
    const std::lock_guard<std::mutex> lock(mutex);
    expectedText.clear();
    EXPECT_TRUE(isExpectedSeen) << "no library complained of: " << text;
}

} // namespace test

/// Turns what GTK and GLib complain about into test failures.
#pragma once

#include <string>

namespace test {

/// From now on every warning or critical of any library fails the test that runs.
void watchLog();

/// While it lives, messages that hold `text` are expected; without one by the end the test fails.
class ExpectedLog {
public:
    explicit ExpectedLog(std::string text);
    ~ExpectedLog();
    ExpectedLog(const ExpectedLog&) = delete;
    ExpectedLog& operator=(const ExpectedLog&) = delete;

private:
    std::string text;
};

} // namespace test

// A million random edits of a time.
#include <ZelCommonView/entries/TimeEntry.h>

#include "entries/RandomEdits.h"

namespace {

/// The parts of a text with two colons; none if it has another number of them.
std::vector<std::string> partsOf(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == ':')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts.size() == 3 ? parts : std::vector<std::string>();
}

bool isPart(const std::string& part, int limit) {
    int number = 0;
    for (const char c : part) {
        if (c < '0' || c > '9')
            return false;
        number = number * 10 + (c - '0');
    }
    return std::to_string(number) == part && number < limit;
}

bool mayStand(const std::string& text, bool isMissingAllowed) {
    const std::vector<std::string> parts = partsOf(text);
    const int limits[] = {24, 60, 60};
    bool isGood = !parts.empty();
    for (std::size_t i = 0; i < parts.size(); ++i)
        isGood = isGood && ((isMissingAllowed && parts[i].empty()) || isPart(parts[i], limits[i]));
    return isGood;
}

class TimeEntryEdits : public test::RandomEdits<Zel::TimeEntry> {
protected:
    TimeEntryEdits() {
        entry.signalDataChanged().connect([this](bool isValid, const std::string& text) {
            ++toldCount;
            // Always valid, always the last time, and it stands in the entry.
            if (!isValid || text != entry.lastValidTime || text != entry.getData())
                ADD_FAILURE() << "told of " << text << " while " << entry.lastValidTime << " is the last";
        });
    }

    void call() override {
        static const char* const texts[] = {"0:0:0",  "23:59:59", "24:0:0", "1:02:3", "",        "::",
                                            "12::30", "x",        "7:8:9",  "\xd0",   "1:2:3:4", "59:0:0"};
        switch (below(4)) {
        case 0:
            entry.setAutosize(below(2) == 0);
            break;
        case 1: {
            GdkEventButton event{};
            entry._onTimeButtonRelease(&event);
            break;
        }
        default:
            entry.setData(oneOf(texts));
            break;
        }
    }

    void pressKey(const test::Key& key) override {
        const std::string text = entry.getData();
        const int told = toldCount;
        RandomEdits::pressKey(key);
        // These walk the parts and copy; they never change them.
        for (const unsigned int value :
             {GDK_KEY_colon, GDK_KEY_Tab, GDK_KEY_Left, GDK_KEY_Right, GDK_KEY_Copy, GDK_KEY_Cut})
            if (key.value == value && (entry.getData() != text || toldCount != told))
                ADD_FAILURE() << "changed " << text;
    }

    void expectInvariants() override {
        const std::string text = entry.getData();
        if (!mayStand(entry.lastValidTime, false))
            ADD_FAILURE() << "no time: " << entry.lastValidTime;
        // Either the last time, or one with a part that is still missing.
        if (text != entry.lastValidTime && (mayStand(text, false) || !mayStand(text, true)))
            ADD_FAILURE() << text << " beside " << entry.lastValidTime;
        if (!entry.changedConnection.connected() || entry.changedConnection.blocked())
            ADD_FAILURE() << "the entry no longer listens to itself";
        if (entry.get_width_chars() != (entry.getAutosize() ? static_cast<int>(text.size()) + 1 : -1))
            ADD_FAILURE() << "width " << entry.get_width_chars();
    }

    int toldCount = 0;
};

} // namespace

TEST_F(TimeEntryEdits, LeaveATimeOrAMissingPart) {
    run();
    EXPECT_GT(toldCount, 100000);
}

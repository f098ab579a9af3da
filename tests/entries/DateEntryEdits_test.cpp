// A million random edits of a date.
#include <ZelCommonView/entries/DateEntry.h>

#include "entries/RandomEdits.h"

namespace {

class DateEntryEdits : public test::RandomEdits<Zel::DateEntry> {
protected:
    DateEntryEdits() {
        entry.calendar.signal_day_selected().connect([this] { ++chosenCount; });
        entry.calendar.select_month(2, 2024);
        entry.calendar.select_day(7);
    }

    void call() override {
        const int choice = below(10);
        if (choice < 3) {
            static const char* const texts[] = {"", "07:03:2024", "any text", "99:99:9999"};
            entry.set_text(oneOf(texts));
        } else if (choice < 8) {
            entry.calendar.select_day(static_cast<unsigned>(1 + below(28)));
            _expectDate();
        } else {
            entry.calendar.select_month(static_cast<unsigned>(below(12)),
                                        static_cast<unsigned>(1900 + below(200)));
            entry.calendar.select_day(static_cast<unsigned>(1 + below(28)));
            _expectDate();
        }
    }

    void expectInvariants() override {
        // No edit reaches the calendar, and only a chosen day comes from it.
        if (chosen() != known && chosenCount == knownCount)
            ADD_FAILURE() << "the calendar followed the text " << entry.get_text();
        known = chosen();
        knownCount = chosenCount;
        if (entry.popover.get_visible())
            ADD_FAILURE() << "the calendar opened";
        if (entry.get_width_chars() != std::max(entry.get_text_length() + 1, 2))
            ADD_FAILURE() << "width " << entry.get_width_chars();
        if (entry.get_text_length() > 100)
            entry.set_text("");
    }

    std::vector<unsigned> chosen() const {
        unsigned year = 0;
        unsigned month = 0;
        unsigned day = 0;
        entry.calendar.get_date(year, month, day);
        return {year, month, day};
    }

    int chosenCount = 0;

private:
    void _expectDate() {
        const std::vector<unsigned> date = chosen();
        const auto twoDigits = [](unsigned number) {
            return (number < 10 ? "0" : "") + std::to_string(number);
        };
        const std::string text =
            twoDigits(date[2]) + ":" + twoDigits(date[1] + 1) + ":" + std::to_string(date[0]);
        if (entry.get_text() != text)
            ADD_FAILURE() << entry.get_text() << " in place of " << text;
    }

    std::vector<unsigned> known = chosen();
    int knownCount = 0;
};

} // namespace

TEST_F(DateEntryEdits, LeaveTheCalendarAlone) {
    run();
    EXPECT_GT(chosenCount, 10000);
}

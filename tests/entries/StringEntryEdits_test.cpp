// A million random edits of a text.
#include <ZelCommonView/entries/StringEntry.h>

#include "entries/RandomEdits.h"

namespace {

class StringEntryEdits : public test::RandomEdits<Zel::StringEntry> {
protected:
    StringEntryEdits() {
        entry.signalValueChanged().connect([this](const std::string& text) { told.push_back(text); });
        entry.set_text("text");
        test::sendFocus(entry, true);
        last = "text";
    }

    void call() override {
        static const char* const texts[] = {"", "a", "text", "некий текст", "1:2:3"};
        switch (below(3)) {
        case 0:
            entry.setAutosize(below(2) == 0);
            break;
        case 1:
            if (entry.get_text_length() > 40)
                entry.set_text("");
            break;
        default:
            entry.set_text(oneOf(texts));
            break;
        }
    }

    void pressKey(const test::Key& key) override {
        if (key.value == GDK_KEY_Tab || key.value == GDK_KEY_Return || key.value == GDK_KEY_KP_Enter)
            _finish();
        RandomEdits::pressKey(key);
    }

    void moveFocus(bool isIn) override {
        if (isIn)
            last = entry.get_text();
        else
            _finish();
        RandomEdits::moveFocus(isIn);
    }

    void expectInvariants() override {
        // Exactly what was finished and differs from what was there or reported before.
        if (told != expected)
            ADD_FAILURE() << "told " << told.size() << " times in place of " << expected.size();
        told.clear();
        expected.clear();
        if (entry.lastReportedText != last)
            ADD_FAILURE() << entry.lastReportedText << " in place of " << last;
        const int length = entry.get_text_length();
        if (entry.get_width_chars() != (!entry.getAutosize() ? -1 : length == 0 ? 2 : length + 1))
            ADD_FAILURE() << "width " << entry.get_width_chars();
    }

private:
    /// The person finishes an edit.
    void _finish() {
        const std::string text = entry.get_text();
        if (text == last)
            return;
        last = text;
        expected.push_back(text);
        ++finishedCount;
    }

protected:
    std::vector<std::string> told;
    std::vector<std::string> expected;
    std::string last;
    int finishedCount = 0;
};

} // namespace

TEST_F(StringEntryEdits, AreReportedOnceEach) {
    run();
    EXPECT_GT(finishedCount, 10000);
}

// A million random edits of an address.
#include <ZelCommonView/entries/IpEntry.h>

#include "entries/RandomEdits.h"

namespace {

/// Four numbers of one to three digits, up to 255, with a point between them.
bool isAddress(std::string text) {
    // A line end behind it is passed over.
    if (!text.empty() && text.back() == '\n')
        text.pop_back();
    int parts = 0;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = std::min(text.find('.', start), text.size());
        int number = 0;
        for (std::size_t i = start; i < end; ++i) {
            if (text[i] < '0' || text[i] > '9')
                return false;
            number = number * 10 + (text[i] - '0');
            if (i - start >= 3)
                return false;
        }
        if (end == start || number > 255)
            return false;
        ++parts;
        if (end == text.size())
            return parts == 4;
        start = end + 1;
    }
}

/// Whether the address entry takes the key; of those that are pressed here.
bool isTaken(const test::Key& key) {
    if (key.state & GDK_CONTROL_MASK)
        return true;
    switch (key.value) {
    case GDK_KEY_Left:
    case GDK_KEY_Right:
    case GDK_KEY_Home:
    case GDK_KEY_End:
    case GDK_KEY_Insert:
    case GDK_KEY_F3:
    case GDK_KEY_Shift_L:
    case GDK_KEY_Copy:
    case GDK_KEY_Cut:
    case GDK_KEY_ISO_Left_Tab:
    case GDK_KEY_a:
    case GDK_KEY_Z:
    case GDK_KEY_Cyrillic_zhe:
    case GDK_KEY_comma:
    case GDK_KEY_colon:
        return false;
    default:
        return true;
    }
}

class IpEntryEdits : public test::RandomEdits<Zel::IpEntry> {
protected:
    IpEntryEdits() {
        entry.signalIpChanged().connect([this](bool isValid, const std::string& text) {
            ++toldCount;
            validCount += isValid;
            if (text != entry.get_text() || isValid != isAddress(text))
                ADD_FAILURE() << text << (isValid ? " is" : " isn't") << " an address";
        });
        // The shares of an address, so that it becomes whole now and then.
        for (int i = 0; i < 3; ++i)
            for (const unsigned int value : {GDK_KEY_period, GDK_KEY_1, GDK_KEY_2})
                keys.push_back({value});
    }

    void call() override {
        static const char* const texts[] = {"", "1.2.3.", "10.0.0.1", "255.255.255.255", "text", "1.2.3.4\n"};
        entry.set_text(oneOf(texts));
    }

    void pressKey(const test::Key& key) override {
        const bool isExpected = isTaken(key);
        const std::string text = entry.get_text();
        const auto selected = selection();
        const int told = toldCount;
        sendPress(key);
        if (entry.keyAccepted != isExpected)
            ADD_FAILURE() << "taken: " << entry.keyAccepted;
        if (toldCount != told)
            ADD_FAILURE() << "told at the press";
        // What isn't for the entry changes nothing in it.
        if (!isExpected && (entry.get_text() != text || selection() != selected))
            ADD_FAILURE() << "changed " << text;
        test::sendKeyEvent(entry, false, key.value, key.state, test::stringOf(key.value, key.state).c_str());
        if (toldCount != told + (isExpected ? 1 : 0))
            ADD_FAILURE() << "told " << toldCount - told << " times";
    }

    void expectInvariants() override {
        if (entry.get_width_chars() != std::max(entry.get_text_length() + 1, 2))
            ADD_FAILURE() << "width " << entry.get_width_chars();
    }

    int toldCount = 0;
    int validCount = 0;
};

} // namespace

TEST_F(IpEntryEdits, AreJudgedKeyByKey) {
    call();
    run();
    EXPECT_GT(toldCount, 100000);
    EXPECT_GT(validCount, 1000);
    EXPECT_GT(toldCount - validCount, 1000);
}

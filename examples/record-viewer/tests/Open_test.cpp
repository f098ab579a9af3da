#include "Samples.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace record;
using test::Configuration;
using test::threeLines;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

class Opening : public testing::Test {
protected:
    fs::path write(const std::string& name, const std::string& bytes) {
        test::writeFile(folder / name, bytes);
        return folder / name;
    }

    std::string refusal(const std::string& name) {
        return test::refusal([&] { record::open(folder / name); });
    }

    const test::TemporaryFolder temporary;
    const fs::path folder = temporary.path;
    const std::string config = Configuration().text();
};

} // namespace

TEST_F(Opening, APairOpensByEitherFileInAnyLetterCase) {
    for (const auto& [configName, dataName] : {std::pair("a.cfg", "a.dat"), std::pair("b.CFG", "b.DAT"),
                                               std::pair("c.Cfg", "c.dAt"), std::pair("d.cfg", "d.DAT")}) {
        write(configName, config);
        write(dataName, threeLines);
        for (const char* name : {configName, dataName}) {
            const Record record = record::open(folder / name);
            EXPECT_EQ(record.size(), 3u) << name;
            EXPECT_EQ(record.path, (folder / name).string());
        }
    }
}

TEST_F(Opening, TheSameStemIsPreferredToAnotherLetterCase) {
    write("record.cfg", config);
    // Folders list their files in no order, so many others are needed to be sure that the right one is not
    // just the first.
    for (int capitals = 1; capitals < 64; ++capitals) {
        std::string stem = "record";
        for (std::size_t i = 0; i < stem.size(); ++i)
            if (capitals >> i & 1)
                stem[i] = static_cast<char>(stem[i] - 'a' + 'A');
        write(stem + ".DAT", "1,0,1,1,0\n");
    }
    EXPECT_EQ(record::open(folder / "record.cfg").size(), 1u);
    write("record.DaT", threeLines);
    EXPECT_EQ(record::open(folder / "record.cfg").size(), 3u);
}

TEST_F(Opening, AStemMeansThePairBeforeTheCombinedFile) {
    write("a.cfg", config);
    write("a.dat", threeLines);
    write("a.cff", "--- file type: CFG ---\n" + config + "--- file type: DAT ASCII ---\n1,0,1,1,0\n");
    EXPECT_EQ(record::open(folder / "a").size(), 3u);
    EXPECT_EQ(record::open(folder / "a.cff").size(), 1u);
    fs::remove(folder / "a.cfg");
    EXPECT_EQ(record::open(folder / "a").size(), 1u);
}

TEST_F(Opening, TablesOpenByTheirExtension) {
    write("a.CSV", "t,a\n0,1\n1,2\n");
    EXPECT_EQ(record::open(folder / "a.CSV").size(), 2u);
}

TEST_F(Opening, AccompanyingTextsAreDecodedEachForItself) {
    write("a.cfg", config);
    write("a.dat", threeLines);
    write("a.HDR", "\xCF\xF3\xF1\xEA");
    write("a.inf", "Пуск");
    const Record record = record::open(folder / "a.cfg");
    EXPECT_EQ(record.header, "Пуск");
    EXPECT_EQ(record.information, "Пуск");
    EXPECT_EQ(record.encoding, "ASCII");
}

TEST_F(Opening, MissingPartnersAreNamed) {
    write("a.cfg", config);
    write("b.dat", threeLines);
    EXPECT_EQ(refusal("a.cfg"), "a.cfg: expected a .dat file of the same name beside it, found none.");
    EXPECT_EQ(refusal("b.dat"), "b.dat: expected a .cfg file of the same name beside it, found none.");
    EXPECT_THAT(refusal("c.cfg"), HasSubstr("c.cfg does not exist"));
    EXPECT_THAT(refusal("c.dat"), HasSubstr("c.dat does not exist"));
    EXPECT_THAT(refusal("c.csv"), HasSubstr("c.csv does not exist"));
    EXPECT_THAT(refusal("c"), HasSubstr("found none"));
}

TEST_F(Opening, OtherFilesAndFoldersAreRefused) {
    write("a.txt", "text");
    EXPECT_THAT(refusal("a.txt"),
                HasSubstr("a.txt: expected a file that ends with .cfg, .dat, .cff or .csv, found \".txt\""));
    fs::create_directories(folder / "b.cfg");
    EXPECT_THAT(refusal("b.cfg"), HasSubstr("is not an ordinary file"));
    EXPECT_NE(refusal("."), "nothing");
}

TEST_F(Opening, SalvageOpensAConfigurationWithoutData) {
    write("a.cfg", config);
    const Record record = record::open(folder / "a.cfg", test::salvage());
    EXPECT_EQ(record.analogs.size(), 2u);
    EXPECT_EQ(record.size(), 0u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("the data are missing")));
}

TEST_F(Opening, BytesThatTheCodePageLacksAreTold) {
    Configuration odd;
    odd.station = "\x98,\xCF,1999";
    write("a.cfg", odd.text());
    write("a.dat", threeLines);
    const Record record = record::open(folder / "a.cfg");
    EXPECT_EQ(record.station, "\uFFFD");
    EXPECT_EQ(record.device, "П");
    EXPECT_EQ(record.encoding, "CP1251");
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("1 byte not known to CP1251")));
}

TEST_F(Opening, AnUnknownCodePageIsRefused) {
    Configuration odd;
    odd.station = "\xCF,,1999";
    write("a.cfg", odd.text());
    write("a.dat", threeLines);
    Options options;
    options.codePage = "NO-SUCH";
    EXPECT_THROW(record::open(folder / "a.cfg", options), Error);
}

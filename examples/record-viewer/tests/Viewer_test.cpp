// The program as a person starts it: what it prints, what it writes, how it ends.
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <sys/wait.h>

namespace {

struct Result {
    int code;
    std::string output;
    std::string errors;
};

class ViewerTest : public testing::Test {
protected:
    ViewerTest() {
        test::writeFile(folder.path / "small.cfg",
                        "Station,Device,1999\r\n3,2A,1D\r\n"
                        "1,Ia,A,,A,0.1,0,0,-32767,32767,1,1,P\r\n"
                        "2,Ua,A,,V,1,0,0,-32767,32767,1,1,P\r\n"
                        "1,Trip,,,0\r\n50\r\n1\r\n1000,4\r\n"
                        "01/02/2020,03:04:05.000000\r\n01/02/2020,03:04:05.001000\r\n"
                        "ASCII\r\n1\r\n");
        test::writeFile(folder.path / "small.dat",
                        "1,0,10,100,0\r\n2,1000,-20,-100,1\r\n3,2000,30,50,1\r\n4,3000,5,0,0\r\n");
    }

    Result run(const std::string& arguments, const std::string& environment = "") const {
        const std::string errors = folder.path / "errors";
        const std::string output = folder.path / "output";
        const int status = std::system(
            (environment + " '" + VIEWER + "' " + arguments + " >'" + output + "' 2>'" + errors + "'")
                .c_str());
        return {WEXITSTATUS(status), test::readFile(output), test::readFile(errors)};
    }

    std::string file(const std::string& name) const { return "'" + (folder.path / name).string() + "'"; }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(ViewerTest, TellsWhatItReadAsTextWithoutADisplay) {
    const Result result = run("--info " + file("small.cfg"), "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("Station"), std::string::npos);
    EXPECT_NE(result.output.find("Trip"), std::string::npos);
}

TEST_F(ViewerTest, TellsWhatItReadForAProgram) {
    const Result result = run("--json " + file("small.cfg"), "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json["station"], "Station");
    EXPECT_EQ(json["samples"], 4);
}

TEST_F(ViewerTest, WritesAPictureAndPrintsItsPath) {
    const Result result = run("--png " + file("pictures") + " " + file("small.cfg"));
    EXPECT_EQ(result.code, 0);
    // There is nothing to compute an impedance from, which is no failure.
    EXPECT_EQ(result.errors, "record-viewer: The record has no voltages and currents of the three phases, so "
                             "there is no impedance to compute.\n");
    EXPECT_EQ(result.output, (folder.path / "pictures" / "small-oscillogram.png\n").string() +
                                 (folder.path / "pictures" / "small.png\n").string());
    const test::Picture oscillogram = test::pictureOfFile(folder.path / "pictures" / "small-oscillogram.png");
    EXPECT_EQ(oscillogram.width, 1400);
    EXPECT_EQ(oscillogram.height, 900);
    EXPECT_EQ(oscillogram.at(700, 200)[0], 211); // a plot, and not an empty page
    const test::Picture picture = test::pictureOfFile(folder.path / "pictures" / "small.png");
    EXPECT_EQ(picture.width, 1400);
    // The curve of the current rises from its first sample to a corner and falls again.
    EXPECT_GT(picture.countPainted(), 5000);
    int colored = 0;
    for (int x = 200; x < picture.width; ++x)
        for (int y = 0; y < picture.height; ++y) {
            const auto pixel = picture.at(x, y);
            colored += pixel[0] > pixel[2] + 60; // the orange of the first curve
        }
    EXPECT_GT(colored, 1000);
}

TEST_F(ViewerTest, WritesThePlanesOfAFaultTheSameEachTime) {
    for (const char* const name : {"a", "b"}) {
        const Result result = run("--png " + file(name) + " '" + DEMO_RECORD + "'");
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.errors, "");
        EXPECT_NE(result.output.find((folder.path / name / "line-fault-hodograph.png\n").string() +
                                     (folder.path / name / "line-fault-zplane.png\n").string()),
                  std::string::npos);
    }
    for (const char* const name : {"line-fault-hodograph.png", "line-fault-zplane.png"}) {
        const test::Picture picture = test::pictureOfFile(folder.path / "a" / name);
        EXPECT_EQ(picture.width, 1400);
        EXPECT_EQ(picture.height, 900);
        EXPECT_TRUE(picture == test::pictureOfFile(folder.path / "b" / name)) << name;
    }
}

TEST_F(ViewerTest, WithoutADisplaySaysSoAndHowToDoWithout) {
    const Result result = run("--png " + file("pictures") + " " + file("small.cfg"), "DISPLAY=");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.errors, "record-viewer: there is no display to paint on; --info and --json need none\n");
}

TEST_F(ViewerTest, AFolderThatCantBeMadeIsNamed) {
    const Result result = run("--png " + file("small.dat") + "/below " + file("small.cfg"));
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.errors.find("the pictures can't be written to"), std::string::npos);
    EXPECT_NE(result.errors.find("small.dat/below"), std::string::npos);
}

TEST_F(ViewerTest, ADamagedRecordGetsOneSentenceAndIsReadOnRequest) {
    const std::string whole = test::readFile(folder.path / "small.cfg");
    test::writeFile(folder.path / "small.cfg", whole.substr(0, whole.find("1,Trip") + 3));
    const Result refused = run("--info " + file("small.cfg"));
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(std::count(refused.errors.begin(), refused.errors.end(), '\n'), 1);
    EXPECT_NE(refused.errors.find("small.cfg"), std::string::npos);
    const Result salvaged = run("--salvage --info " + file("small.cfg"));
    EXPECT_EQ(salvaged.code, 0);
    EXPECT_NE(salvaged.output.find("Ua"), std::string::npos);
}

TEST_F(ViewerTest, ArgumentsThatMakeNoSenseGetASentence) {
    const auto complaint = [this](const std::string& arguments) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 2) << arguments;
        EXPECT_EQ(result.output, "");
        return result.errors;
    };
    EXPECT_EQ(complaint(""), "record-viewer: name the record to open: record-viewer FILE\n");
    EXPECT_EQ(complaint("a b"), "record-viewer: one record at a time can be opened, and 2 were named\n");
    EXPECT_EQ(complaint("--axis x a"),
              "record-viewer: --axis takes \"rates\" or \"stamps\", and not \"x\"\n");
    EXPECT_EQ(complaint("--lang de a"), "record-viewer: --lang takes \"en\" or \"ru\", and not \"de\"\n");
    EXPECT_NE(complaint("--nonsense a").find("--nonsense"), std::string::npos);
}

TEST_F(ViewerTest, ExplainsItself) {
    const Result result = run("--help");
    EXPECT_EQ(result.code, 0);
    for (const char* option :
         {"--info", "--json", "--png", "--salvage", "--code-page", "--axis", "--lang", "FILE"})
        EXPECT_NE(result.output.find(option), std::string::npos) << option;
}

// Finding data files.
#include "base/data_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace ombrel {
namespace {

namespace fs = std::filesystem;

class DataFile : public testing::Test {
protected:
    DataFile() : before_(DataFolder()), folder_(fs::current_path()) {
        root_ = fs::temp_directory_path() /
                ("ombrel-data-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) + "-" +
                 testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(root_ / "Data" / "3D");
        Put("Data/3D/Cube.cob", "cube");
        Put("Data/font.bmp", "font");
        Put("Outside.txt", "outside");
        SetDataFolder((root_ / "Data").string());
    }
    ~DataFile() override {
        SetDataFolder(before_);
        std::error_code error;
        fs::current_path(folder_, error);
        fs::remove_all(root_, error);
    }
    void Put(const std::string& name, const std::string& text) const {
        std::ofstream(root_ / name, std::ios::binary) << text;
    }
    static std::string Read(const char* name) {
        std::FILE* const file = OpenDataFile(name, "r");
        if (file == nullptr) {
            return "(none)";
        }
        char text[64] = "";
        const std::size_t size = std::fread(text, 1, sizeof text, file);
        std::fclose(file);
        return std::string(text, size);
    }

    std::string before_;
    fs::path folder_;
    fs::path root_;
};

TEST_F(DataFile, ExactNames) {
    EXPECT_EQ(Read("./data/font.bmp"), "font");
    EXPECT_EQ(FindDataFile("./data/font.bmp"), (root_ / "Data" / "font.bmp").string());
    EXPECT_EQ(DataFolder(), (root_ / "Data").string());
}

TEST_F(DataFile, AnyLetterCaseAndBothSlashes) {
    EXPECT_EQ(Read("./data/3d/cube.cob"), "cube");
    EXPECT_EQ(Read("./DATA/3d/CUBE.COB"), "cube");
    EXPECT_EQ(Read(".\\data\\3d\\cube.cob"), "cube");
    EXPECT_EQ(Read("./data//3d/./cube.cob"), "cube");
}

TEST_F(DataFile, ExactCaseComesFirst) {
    Put("Data/FONT.BMP", "capitals");
    EXPECT_EQ(Read("./data/font.bmp"), "font");
    EXPECT_EQ(Read("./data/FONT.BMP"), "capitals");
    EXPECT_EQ(Read("./data/Font.bmp"), "capitals") << "else the first in sorted order";
}

TEST_F(DataFile, TrailingBlanksButNotLeadingOnes) {
    EXPECT_EQ(Read("./data/font.bmp  \t\r\n"), "font");
    EXPECT_EQ(Read(" ./data/font.bmp"), "(none)");
    EXPECT_EQ(Read("./data/ font.bmp"), "(none)");
}

TEST_F(DataFile, NothingThere) {
    EXPECT_EQ(FindDataFile("./data/absent.bmp"), "");
    EXPECT_EQ(FindDataFile("./data/absent/font.bmp"), "");
    EXPECT_EQ(FindDataFile("./data/font.bmp/x"), "");
    EXPECT_EQ(FindDataFile(""), "");
    EXPECT_EQ(FindDataFile("   "), "");
    EXPECT_EQ(FindDataFile(nullptr), "");
    EXPECT_EQ(OpenDataFile(nullptr, "r"), nullptr);
}

TEST_F(DataFile, FoldersDoNotOpen) {
    EXPECT_EQ(OpenDataFile("./data/3d", "r"), nullptr);
    EXPECT_EQ(OpenDataFile("./data", "r"), nullptr);
    EXPECT_EQ(OpenDataFile("./data/", "rb"), nullptr);
}

TEST_F(DataFile, DevicesAndPipesDoNotOpen) {
    // Reading the one would never end, opening the other would wait for a writer.
    EXPECT_EQ(Read("/dev/zero"), "(none)");
    const std::string pipe = (root_ / "Data" / "pipe.cob").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(Read("./data/pipe.cob"), "(none)");
    fs::create_symlink(root_ / "Data" / "font.bmp", root_ / "Data" / "link.bmp");
    EXPECT_EQ(Read("./data/link.bmp"), "font");
}

TEST_F(DataFile, OtherPathsStayAsTheyAre) {
    EXPECT_EQ(Read((root_ / "Outside.txt").string().c_str()), "outside");
    EXPECT_EQ(FindDataFile("./database/font.bmp"), "") << "only the whole name data";
}

TEST_F(DataFile, WithoutAFolderTheWorkingDirectoryCounts) {
    SetDataFolder("");
    fs::current_path(root_);
    fs::create_directories(root_ / "data");
    Put("data/here.txt", "here");
    EXPECT_EQ(Read("./data/here.txt"), "here");
}

TEST_F(DataFile, FolderNamesThatAreTooLongCountAsNone) {
    SetDataFolder(std::string(4096, 'x'));
    EXPECT_EQ(DataFolder(), "");
    SetDataFolder(std::string(4095, 'x'));
    EXPECT_EQ(DataFolder(), std::string(4095, 'x'));
    EXPECT_EQ(FindDataFile("./data/font.bmp"), "");
}

TEST_F(DataFile, LineEndsAreNeverConverted) {
    Put("Data/text.txt", "a\r\nb\x1A"
                         "c");
    EXPECT_EQ(Read("./data/text.txt"), "a\r\nb\x1A"
                                       "c");
}

TEST_F(DataFile, OfALongFileTheRestIsLeftOut) {
    std::string text;
    for (int i = 0; i < 20000; ++i) {
        text += static_cast<char>('a' + i % 23);
    }
    Put("Data/long.txt", text);
    EXPECT_EQ(ReadDataFile("./data/long.txt", 20000), text);
    EXPECT_EQ(ReadDataFile("./data/long.txt", 4096), text.substr(0, 4096));
    EXPECT_EQ(ReadDataFile("./data/long.txt", 4097), text.substr(0, 8192)) << "to the next 4096";
    EXPECT_EQ(ReadDataFile("./data/none.txt", 4096), "");
}

TEST_F(DataFile, LongAndOddNamesAreJustNotThere) {
    EXPECT_EQ(FindDataFile(("./data/" + std::string(100000, 'n')).c_str()), "");
    EXPECT_EQ(FindDataFile("./data/\x01\xFF\xFE.bmp"), "");
}

} // namespace
} // namespace ombrel

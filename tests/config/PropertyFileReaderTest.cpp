#include "TestConfig.h"

#include "config/PropertyFiles.h"

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <utility>
#include <vector>

using numbering::PropertyFileReader;
using numbering::PropertyTable;

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

/// Every key and value a configuration holds, read through its protected map iterators.
template <class Configuration> class Contents : public Configuration {
public:
    explicit Contents(const std::string& path) : Configuration(path) {}
    Entries entries() const { return Entries(this->begin(), this->end()); }

protected:
    ~Contents() override = default;
};

Entries readByPoco(const std::string& path) {
    Poco::AutoPtr<Contents<Poco::Util::PropertyFileConfiguration>> file(
        new Contents<Poco::Util::PropertyFileConfiguration>(path));
    return file->entries();
}

Entries readByReader(const std::string& path) {
    Poco::AutoPtr<Contents<PropertyFileReader>> file(new Contents<PropertyFileReader>(path));
    return file->entries();
}

/// What a numbered list walk sees: the values in order, then the text of the missing key's error.
std::vector<std::string> walkByPoco(const Poco::Util::AbstractConfiguration& file) {
    std::vector<std::string> seen;
    char key[16];
    try {
        for (int index = 0; index <= 9998; ++index) {
            std::snprintf(key, sizeof key, "AC_%04d", index);
            seen.push_back(file.getString(key));
        }
    } catch (const Poco::NotFoundException& e) {
        seen.push_back("missing " + e.message());
    }
    return seen;
}

std::vector<std::string> walkByTable(const PropertyTable& table) {
    std::vector<std::string> seen;
    try {
        table.forEachIndexedValue("AC_", [&](std::string_view value) { seen.emplace_back(value); });
    } catch (const Poco::NotFoundException& e) {
        seen.push_back("missing " + e.message());
    }
    return seen;
}

const char* const FILE_NAME = "reader_test.properties";

class PropertyFileReading : public ::testing::Test {
protected:
    void TearDown() override { testconfig::remove(FILE_NAME); }

    void expectReadAsPocoReads(const std::string& text) {
        testconfig::write(FILE_NAME, text);
        const std::string path = testconfig::directory() + FILE_NAME;
        EXPECT_EQ(readByReader(path), readByPoco(path)) << testing::PrintToString(text);
        // The table answers every key, and walks the numbered list, as Poco's configuration does.
        Poco::AutoPtr<Contents<Poco::Util::PropertyFileConfiguration>> poco(
            new Contents<Poco::Util::PropertyFileConfiguration>(path));
        PropertyTable table(path);
        for (const auto& entry : poco->entries())
            EXPECT_EQ(table.getString(entry.first), poco->getString(entry.first))
                << testing::PrintToString(text);
        EXPECT_EQ(table.getString("no such key", "default"), "default");
        EXPECT_THROW(table.getString("no such key"), Poco::NotFoundException);
        EXPECT_EQ(walkByTable(table), walkByPoco(*poco)) << testing::PrintToString(text);
    }
};

} // namespace

// The reader replaces Poco's own reading of the files: it must fill the configuration exactly as
// Poco does, oddities included.
TEST_F(PropertyFileReading, ReadsEveryFileAsPocoDoes) {
    const char* const cases[] = {
        "",
        "Translate=1\nAC_0000=30 Berlin\nAC_0001 = 40\n",
        "# comment\n! comment too\n  key : value  \n\tother=\n",
        "a=b\\\nc\nd=e\\\r\nf\rg=h\\",
        "a=\\t\\n\\r\\f\\x\\\\\n",
        "dup=1\ndup=2\n",
        "novalue\n=empty key\n:colon\n",
        "k=v\r\n k2 = v2 \r\n#c\r\n",
        "\xe9t\xe9=\xff\x80\n",
        "a.b=1\na=2\na.c=3\n",
        "x=${y}\ny=1\n",
        "Translate=1\nAC_0000=30 Berlin\nAC_0001=40\nAC_0003=69\n",
        "AC_0001=2\nAC_0000=1\nAC_0000=0\nAC_00001=x\nAC_000a=y\n",
        "AC_0000=${AC_0001}\nAC_0001=7\n",
        "AC_0000=$\\{x}\nx=1\n",
    };
    for (const char* text : cases)
        expectReadAsPocoReads(text);
    expectReadAsPocoReads(std::string("nul=a\0b=c\nz=\\\0w\n", 17));
}

TEST_F(PropertyFileReading, ReadsRandomTextsAsPocoDoes) {
    const std::string alphabet =
        std::string(" \t\r\n\\=:#!abn0rtf.${}\x80\xff\f\v", 24) + std::string(1, '\0');
    const char* const pieces[] = {"AC_0000", "AC_0001", "AC_0002", "\nAC_000", "=", "\n"};
    std::mt19937 random(20240601);
    for (int round = 0; round < 500; ++round) {
        std::string text;
        const std::size_t length = random() % 120;
        for (std::size_t i = 0; i < length; ++i) {
            if (random() % 8 == 0)
                text += pieces[random() % 6];
            else
                text += alphabet[random() % alphabet.size()];
        }
        expectReadAsPocoReads(text);
    }
}

TEST_F(PropertyFileReading, MissingFileRaisesWhatPocoRaises) {
    const std::string path = testconfig::directory() + "no_such_file.properties";
    EXPECT_THROW(readByPoco(path), Poco::FileNotFoundException);
    EXPECT_THROW(readByReader(path), Poco::FileNotFoundException);
    EXPECT_THROW(PropertyTable table(path), Poco::FileNotFoundException);
}

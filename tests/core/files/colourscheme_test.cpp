// Colour schemes: the list, the two loaders, colour lines and painting.
#include "core/files/colourscheme.h"

#include <gtest/gtest.h>

#include "support/tempfolder.h"

namespace combwise {
namespace {

std::string schemeText(const std::string& header, int red) {
  std::string text = header + "\r\n";
  for (int i = 0; i < ColourScheme::kFileColours; ++i) text += std::to_string(red + i) + ";2;3\r\n";
  return text;
}

class SchemeFile : public ::testing::Test {
 protected:
  TempFolder folder;
  const std::string file =
      folder.write("all.col", schemeText("xp.col", 10) + schemeText("blue.col", 100) +
                                  "short.col\n1;1;1\n2;2;2\n3;3;3\n\n9;9;9\nmy old colours.col backup\n");
  const DesignedColours designed{rgb(250, 250, 250), rgb(7, 7, 7)};
};

TEST_F(SchemeFile, ListHoldsTheTextBeforeColOfEveryLineContainingIt) {
  EXPECT_EQ(schemeList(file), (std::vector<std::string>{"xp", "blue", "short", "my old colours"}));
  EXPECT_TRUE(schemeList(folder.file("missing.col")).empty());
  EXPECT_EQ(schemeListEntry("a.col.col"), "a");
}

TEST_F(SchemeFile, TheOptionsLoaderReadsThirteenColoursAndReturnsColourTwo) {
  ColourScheme scheme;
  scheme[13] = 77;
  const SchemeLoad load = loadOptionsScheme(file, "blue.col", scheme, designed);
  EXPECT_TRUE(load.message.empty());
  EXPECT_EQ(load.colour, rgb(102, 2, 3));
  for (int i = 0; i < 13; ++i) EXPECT_EQ(scheme[i], rgb(100 + i, 2, 3)) << i;
  EXPECT_EQ(scheme[13], 77);  // never in the file
}

TEST_F(SchemeFile, MissingSchemesKeepTheTableAndFallBackWithTheirOwnWords) {
  ColourScheme scheme;
  const auto before = scheme.colours;
  SchemeLoad load = loadOptionsScheme(file, "Blue.col", scheme, designed);  // names match exactly
  EXPECT_EQ(load.message, "Color Scheme: Blue.col not found");
  EXPECT_EQ(load.detail, file + " holds no scheme Blue.col");
  EXPECT_EQ(load.colour, 0);
  EXPECT_EQ(scheme.name, "default.col");
  EXPECT_EQ(scheme.colours, before);

  load = loadStartupScheme(folder.file("none.col"), "blue.col", scheme, designed);
  EXPECT_EQ(load.message, "Colour Scheme: blue.col not found");
  EXPECT_EQ(load.detail, "Cannot open " + folder.file("none.col") + ": No such file or directory");
  EXPECT_EQ(scheme.name, "xp.col");
  EXPECT_EQ(scheme.colours, before);

  // Bytes that cannot be shown never reach the notice raw.
  load = loadStartupScheme(file, "\x1b[2J\xff\xc3\xa9.col", scheme, designed);
  EXPECT_EQ(load.message, "Colour Scheme: ?[2J?\xc3\xa9.col not found");
}

// Colours 2 and 4 take the designed list-box colour, 3 the form's brush.
TEST_F(SchemeFile, TheDefaultSchemeTakesTheDesignedColours) {
  ColourScheme scheme;
  const auto before = scheme.colours;
  SchemeLoad load = loadOptionsScheme(folder.file("no such file"), "DEFAULT.col", scheme, designed);  // never opened
  EXPECT_TRUE(load.message.empty());
  EXPECT_EQ(load.colour, designed.listBox);
  EXPECT_EQ(std::vector({scheme[0], scheme[2], scheme[3], scheme[4]}),
            std::vector({before[0], designed.listBox, designed.formBrush, designed.listBox}));
}

TEST(ColourLine, FieldsAreRoundedNumbersAndAnythingElseReadsZero) {
  EXPECT_EQ(parseColourLine("12.5;13.5; 7x"), rgb(12, 14, 7));
  EXPECT_EQ(parseColourLine("red;-4;300"), rgb(0, 0, 255));
  EXPECT_FALSE(parseColourLine(""));
}

TEST(SchemePaintRules, ColourThirteenOverridesTheButtonColourAndDefaultKeepsTheFormBackground) {
  ColourScheme scheme;
  scheme[4] = 500;
  scheme[13] = 0;  // takes the button colour
  EXPECT_EQ(prepareSchemePaint(scheme).buttons, 500);
  EXPECT_EQ(scheme[13], 500);
  scheme[13] = 1;  // gives it
  const SchemePaint paint = prepareSchemePaint(scheme);
  EXPECT_EQ(paint.buttons, 1);
  EXPECT_EQ(paint.formBrush, scheme[3]);

  // A "default" scheme in any case keeps the designed form background.
  scheme.name = "MyDefault.col";
  EXPECT_FALSE(prepareSchemePaint(scheme).formBrush);
}

}  // namespace
}  // namespace combwise

#include "extensions/declaration.h"

#include <gtest/gtest.h>

namespace zvx::test {
namespace {

using Lines = std::vector<std::string>;

DeclarationScan PlugIn(const Lines& lines) {
    return ScanDeclaration(ExtensionKind::PlugIn, "p.zvp", lines);
}
DeclarationScan AddOn(Lines lines) {
    lines.insert(lines.begin(), {"<EXE>a.sh", "<MENU>ADDONS"});
    return ScanDeclaration(ExtensionKind::AddOn, "a.zva", lines);
}

// A block of `names` event lines and, when `closed`, its closing line.
Lines Block(int names, bool closed) {
    Lines lines{"<EVENTS>"};
    for (int i = 0; i < names; ++i)
        lines.push_back("E" + std::to_string(i));
    if (closed)
        lines.push_back("</EVENTS>");
    return lines;
}

TEST(Declaration, TagsAtTheStartOfTheTrimmedLineGiveUpperCasedValuesAndTheLastWins) {
    const DeclarationScan scan =
        PlugIn({"  <exe>c:\\tools\\a.exe  ", "x <MODAL>no", "<modal>fast", "<Modal> t500",
                "a comment", "<events>", " zvxLoad ", "</Events> ignored", "<NAME>first",
                "<name>Second", "<REQUIRES>999"});
    ASSERT_TRUE(scan.accepted()) << scan.refusal;
    EXPECT_EQ(scan.declaration.exe, "C:\\TOOLS\\A.EXE");
    // Nothing behind the tag is trimmed.
    EXPECT_EQ(scan.declaration.modal, " T500");
    EXPECT_EQ(scan.declaration.events, "ZVXLOAD#");
    EXPECT_EQ(scan.declaration.name, "SECOND");

    EXPECT_EQ(PlugIn({"<EXE>a", "<EVENTS>", "X"}).declaration.modal, "yes");
    EXPECT_EQ(PlugIn({"<EXE>a"}).refusal,
              "Insufficient or illegal Plug-In Declaration in: \"p.zvp\" !\r\n"
              "ZVX will not load this Plug-In!");
}

TEST(Declaration, AnAddOnCaptionKeepsItsCaseAndMustFitThirtyCharacters) {
    const DeclarationScan scan = AddOn({"<caption>Hello World"});
    ASSERT_TRUE(scan.accepted()) << "an add-on needs no events";
    EXPECT_EQ(scan.declaration.caption, "Hello World");
    EXPECT_TRUE(AddOn({"<CAPTION>" + std::string(30, 'c')}).accepted());
    EXPECT_TRUE(AddOn({"<CAPTION>é" + std::string(29, 'c')}).accepted())
        << "a UTF-8 sequence is one character";
    EXPECT_EQ(AddOn({"<CAPTION>" + std::string(31, 'c')}).refusal,
              "Insufficient or illegal Add-On Declaration in: \"a.zva\" !\r\n"
              "ZVX will not load this Add-On!");
    EXPECT_FALSE(AddOn({"<CAPTION>-"}).accepted());
    EXPECT_FALSE(AddOn({"<CAPTION>x", "<MENU>"}).accepted());
}

TEST(Declaration, AnEventBlockTakesThirtyLinesWithItsClosingLine) {
    auto withExe = [](Lines lines) {
        lines.insert(lines.begin(), "<EXE>a");
        return PlugIn(lines);
    };
    EXPECT_TRUE(withExe(Block(29, true)).accepted());
    EXPECT_TRUE(withExe(Block(30, false)).accepted()) << "a block may run to the end of the file";
    EXPECT_EQ(withExe(Block(30, true)).refusal,
              "Failure in Plug-In \"p.zvp\" !\r\nThere are to many event-calls in the Plug-In.\r\n"
              "ZVX will not load this Plug-In!");
    Lines blanks{"<EVENTS>", "A"};
    blanks.insert(blanks.end(), 29, "");
    blanks.push_back("</EVENTS>");
    EXPECT_FALSE(withExe(blanks).accepted()) << "empty lines count but add nothing";
    EXPECT_EQ(withExe({"<EVENTS>", "", "B", "</EVENTS>"}).declaration.events, "B#");

    EXPECT_EQ(AddOn({"<CAPTION>c", "<EVENTS>", "A#B"}).refusal,
              "Illegal Function Call in Add-On \"a.zva\" !\r\nZVX will not load this Add-On!");
    Lines many = Block(30, true);
    many.insert(many.begin(), "<CAPTION>c");
    EXPECT_EQ(AddOn(many).refusal,
              "Failure in Add-On \"a.zva\" !\r\nThere are to many event-calls in the add-on.\r\n"
              "ZVX will not load this Add-On!");
}

TEST(Declaration, PlugInBlocksAddUpWhileAnAddOnsStartAnew) {
    const Lines twoBlocks{"<EVENTS>", "a", "</EVENTS>", "<CAPTION>c", "<EVENTS>", "b"};
    EXPECT_EQ(PlugIn({"<EXE>x", "<EVENTS>", "a", "</EVENTS>", "<EVENTS>", "b"}).declaration.events,
              "A#B#");
    EXPECT_EQ(AddOn(twoBlocks).declaration.events, "B#");
    // "-" separates the events from the command of an add-on: refused even when a later
    // block would replace the list.
    EXPECT_EQ(AddOn({"<CAPTION>c", "<EVENTS>", "RE-FRESH", "</EVENTS>", "<EVENTS>", "B"}).refusal,
              "Illegal Function Call in Add-On \"a.zva\" !\r\nZVX will not load this Add-On!");
    EXPECT_TRUE(PlugIn({"<EXE>x", "<EVENTS>", "RE-FRESH"}).accepted());
}

}  // namespace
}  // namespace zvx::test

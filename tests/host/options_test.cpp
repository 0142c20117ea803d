// The host's command line.
#include "host/core/options.h"

#include <gtest/gtest.h>

namespace pelorin::host {
namespace {

TEST(Options, WithoutArgumentsTheUsersOwnEmbeddedDatabaseIsShown) {
  const Options options = parseOptions({});
  EXPECT_EQ(options.source, Source::EmbeddedDatabase);
  EXPECT_EQ(options.database, "");
  EXPECT_FALSE(options.play);
  EXPECT_EQ(options.outputFolder, "out");
}

TEST(Options, AnOptionTakesTheArgumentAfterIt) {
  const Options options = parseOptions({"--database", "my site.site", "--component", "a.dll"});
  EXPECT_EQ(options.database, "my site.site");
  EXPECT_EQ(options.component, "a.dll");
}

TEST(Options, OdbcAndAdoKeepTheirConnectionString) {
  const Options odbc = parseOptions({"--odbc", "DSN=site;UID=host"});
  EXPECT_EQ(odbc.source, Source::OdbcDataSource);
  EXPECT_EQ(odbc.connectionString, "DSN=site;UID=host");
  EXPECT_EQ(parseOptions({"--connect", "Provider=x"}).source, Source::AdoConnection);
}

TEST(Options, PlayTakesAFolderForItsPictures) {
  const Options options = parseOptions({"--play", "--out", "elsewhere"});
  EXPECT_TRUE(options.play);
  EXPECT_EQ(options.outputFolder, "elsewhere");
}

std::string complaintAbout(const std::vector<std::string>& arguments) {
  try {
    parseOptions(arguments);
  } catch (const OptionError& error) {
    return error.what();
  }
  return "none";
}

TEST(Options, AnUnknownOptionIsNamedTogetherWithTheKnownOnes) {
  const std::string complaint = complaintAbout({"--fullscreen"});
  EXPECT_NE(complaint.find("--fullscreen"), std::string::npos);
  EXPECT_NE(complaint.find("--database <file>"), std::string::npos);
}

TEST(Options, AMissingValueIsNamed) {
  EXPECT_NE(complaintAbout({"--database"}).find("--database needs a value"), std::string::npos);
  EXPECT_NE(complaintAbout({"--odbc", "--play"}).find("--odbc needs a value"), std::string::npos);
  EXPECT_NE(complaintAbout({"--out", ""}).find("--out needs a value"), std::string::npos);
}

TEST(Options, OnlyOneSourceOfDataCanBeNamed) {
  const std::string expected = "Only one of --database, --connect and --odbc can be given.";
  EXPECT_EQ(complaintAbout({"--odbc", "a", "--connect", "b"}), expected);
  EXPECT_EQ(complaintAbout({"--database", "a", "--odbc", "b"}), expected);
}

TEST(Options, APlayedRequestCanGoToAServerAndBeUndoneThere) {
  const Options odbc = parseOptions({"--play", "--undo", "--odbc", "DSN=site"});
  EXPECT_TRUE(odbc.play);
  EXPECT_TRUE(odbc.undo);
  EXPECT_EQ(odbc.source, Source::OdbcDataSource);
  const Options ado = parseOptions({"--connect", "Provider=x", "--play"});
  EXPECT_TRUE(ado.play);
  EXPECT_FALSE(ado.undo);
  EXPECT_EQ(ado.source, Source::AdoConnection);
}

TEST(Options, NothingIsUndoneWhereNothingIsPlayedOnAServer) {
  const std::string expected = "--undo belongs to --play with --odbc or --connect.";
  EXPECT_EQ(complaintAbout({"--undo"}), expected);
  EXPECT_EQ(complaintAbout({"--play", "--undo"}), expected);
  EXPECT_EQ(complaintAbout({"--undo", "--odbc", "a"}), expected);
}

TEST(Options, APlayedRequestDoesNotTouchANamedDatabase) {
  EXPECT_NE(complaintAbout({"--play", "--database", "a"}), "none");
  EXPECT_NE(complaintAbout({"--pictures", "p", "--odbc", "a"}), "none");
}

}  // namespace
}  // namespace pelorin::host

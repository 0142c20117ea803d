// SQL Server's language, as far as the embedded site reads it.
#include "site/batch_reader.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace pelorin::site {
namespace {

// A call as "name(arg, @named=arg)"; texts in quotes, nulls and reals as they read.
std::string shown(const Argument& argument) {
  std::string text = argument.name.empty() ? "" : argument.name + "=";
  if (isNull(argument.value)) return text + "null";
  const bool isText = std::holds_alternative<std::string>(argument.value);
  return text + (isText ? "'" + toText(argument.value) + "'" : toText(argument.value));
}

std::string shown(const Batch& batch) {
  if (const auto* statement = std::get_if<EngineText>(&batch)) return statement->sql;
  const auto& call = std::get<CallText>(batch);
  std::string text = call.procedure + "(";
  for (const Argument& argument : call.arguments) {
    text += (text.back() == '(' ? "" : ", ") + shown(argument);
  }
  return text + ")";
}

struct ReaderCase {
  const char* name;
  std::string sql;
  std::string expected;  // what is run, or the error's description
};

void PrintTo(const ReaderCase& reader, std::ostream* out) {
  *out << reader.name;
}

std::string readerCaseName(const testing::TestParamInfo<ReaderCase>& info) {
  return info.param.name;
}

class Understands : public testing::TestWithParam<ReaderCase> {};

TEST_P(Understands, Statement) {
  EXPECT_EQ(shown(readBatch(GetParam().sql)), GetParam().expected);
}

const ReaderCase understood[]{
    {"execCall", "exec TA_DeleteTrigger 5", "TA_DeleteTrigger(5)"},
    {"executeCall", "EXECUTE sp_FetchServerPorts 1", "sp_FetchServerPorts(1)"},
    {"bareCall", "sp_FetchKumbos 3", "sp_FetchKumbos(3)"},
    {"callWithoutArguments", "exec TA_FetchSummary", "TA_FetchSummary()"},
    {"bareCallWithoutArguments", "TA_FetchSummary", "TA_FetchSummary()"},
    {"severalArguments", "CCTV_FetchCameraNoPresets 1, 2", "CCTV_FetchCameraNoPresets(1, 2)"},
    {"namedArguments", "exec X @operatorid=1, @workstationid=2",
     "X(@operatorid=1, @workstationid=2)"},
    {"namedWithBlanks", "exec X @a = 1 , @b = 'x'", "X(@a=1, @b='x')"},
    {"trueAndFalseAreTexts", "exec X True, False", "X('True', 'False')"},
    {"zeroPaddedIsDecimal", "X 00042, 00010", "X(42, 10)"},
    {"realNumber", "X 7.5, .8, 0.8", "X(7.5, 0.8, 0.8)"},
    {"exponent", "X 1e3", "X(1000)"},
    {"negativeNumbers", "X -1, - 2.5, +3", "X(-1, -2.5, 3)"},
    {"nullArgument", "X null, NULL", "X(null, null)"},
    {"emptyText", "X ''", "X('')"},
    {"doubledQuote", "X 'O''Brien', ''''", "X('O'Brien', ''')"},
    {"nationalText", "X N'\xC3\xA4', n'b'", "X('\xC3\xA4', 'b')"},
    {"commaInText", "X 'a, b', 2", "X('a, b', 2)"},
    {"commentMarkInText", "X 'a -- b /* c */'", "X('a -- b /* c */')"},
    {"semicolonInText", "X 'a; b'", "X('a; b')"},
    {"lineBreaksAreBlanks", "exec\r\n\tX\n1\t,\n2", "X(1, 2)"},
    {"bracketedProcedure", "exec [X] 1", "X(1)"},
    {"comments", "exec X /* a /* nested */ b */ 1 -- end", "X(1)"},
    {"closingSemicolon", "exec X 1;", "X(1)"},
    {"semicolonAfterNoArguments", "exec X ;", "X()"},
    {"select", "select ID, DVRName from DVR_Config",
     R"(select "ID" , "DVRName" from "DVR_Config")"},
    {"keywordsInAnyCase", "SELECT DISTINCT a FROM T Where b IN (Select c From U) Order By a",
     R"(select distinct "a" from "T" where "b" in ( select "c" from "U" ) order by "a")"},
    {"bracketedNames", "select T.[name] as N, [Index] from T order by [index]",
     R"(select "T" . "name" as "N" , "Index" from "T" order by "index")"},
    {"bracketInBrackets", "select [a]]b] from T", R"(select "a]b" from "T")"},
    {"quotedNames", "select \"a\"\"b\" from T", R"(select "a""b" from "T")"},
    {"nolockHint", "select * from T (NOLOCK) where a = 1", R"(select * from "T" where "a" = 1)"},
    {"nolockHintUnspaced", "select * from T(nolock)", R"(select * from "T")"},
    {"count", "select count(EventID) from T", R"(select count ( "EventID" ) from "T")"},
    {"nationalLiteral", "select a from T where b=N'x''y'",
     R"(select "a" from "T" where "b" = 'x''y')"},
    {"noBlankAfterEquals", "select a from T where b =5 order by [c]",
     R"(select "a" from "T" where "b" = 5 order by "c")"},
    {"doubledAndTrailingBlanks", "select a  from  T order by a ",
     R"(select "a" from "T" order by "a")"},
    {"deleteFrom", "Delete from T where a = -1", R"(delete from "T" where "a" = - 1)"},
    {"insertColumns", "insert into T (a, b) values (1, 'x')",
     R"(insert into "T" ( "a" , "b" ) values ( 1 , 'x' ))"},
    {"update", "update T set a = null where b <> 2", R"(update "T" set "a" = null where "b" <> 2)"},
    {"trueIsAColumnOutsideCalls", "select a from T where b = True",
     R"(select "a" from "T" where "b" = "True")"},
    {"engineWordsAreNames", "select a from T limit 1", R"(select "a" from "T" "limit" 1)"},
};

INSTANTIATE_TEST_SUITE_P(Reader, Understands, testing::ValuesIn(understood), readerCaseName);

class Refuses : public testing::TestWithParam<ReaderCase> {};

TEST_P(Refuses, Statement) {
  try {
    const Batch batch = readBatch(GetParam().sql);
    FAIL() << "read as " << shown(batch);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.description(), GetParam().expected);
    EXPECT_EQ(error.number(), -2147217900);
  }
}

const ReaderCase refused[]{
    {"nothing", "", "Incorrect syntax at the end of the statement."},
    {"blanks", " \r\n", "Incorrect syntax at the end of the statement."},
    {"onlyAComment", "-- nothing", "Incorrect syntax at the end of the statement."},
    {"execAlone", "exec", "Incorrect syntax at the end of the statement."},
    {"unclosedText", "exec X 'abc, 1",
     "Unclosed quotation mark after the character string 'abc, 1'."},
    {"unclosedDoubledQuote", "exec X 'abc''",
     "Unclosed quotation mark after the character string 'abc'''."},
    {"undoubledQuoteEven", "exec X 1, 'Drivers' lounge', 2", "Incorrect syntax near 'lounge'."},
    {"undoubledQuotesPair", "exec X 'the 'big' door'", "Incorrect syntax near 'big'."},
    {"undoubledQuoteInSelect", "select a from T where b=N'O'Brien'",
     "Unclosed quotation mark after the character string ''."},
    {"unclosedBracket", "select [a from T",
     "Unclosed quotation mark after the character string 'a from T'."},
    {"unclosedComment", "exec X /* /* */ 1", "Missing end comment mark '*/'."},
    {"missingArgument", "exec X 1,", "Incorrect syntax at the end of the statement."},
    {"emptyArgument", "exec X 1,,2", "Incorrect syntax near ','."},
    {"missingComma", "exec X 1 2", "Incorrect syntax near '2'."},
    {"secondCall", "exec X 1 exec Y 2", "Incorrect syntax near 'exec'."},
    {"secondStatementAfterCall", "exec X 1; delete from T", "Incorrect syntax near ';'."},
    {"secondStatementAfterSelect", "select a from T; delete from T", "Incorrect syntax near ';'."},
    {"injectedStatement", "exec X 'a'; drop table T --'", "Incorrect syntax near ';'."},
    {"keywordAsArgument", "exec X select", "Incorrect syntax near 'select'."},
    {"expressionAsArgument", "exec X 1 + 2", "Incorrect syntax near '+'."},
    {"signBeforeText", "exec X -'a'", "Incorrect syntax near 'a'."},
    {"dynamicText", "exec ('select 1')", "Incorrect syntax near '('."},
    {"resultVariable", "exec @rc = X", "Incorrect syntax near '@rc'."},
    {"variableArgument", "exec X @y", "Must declare the scalar variable \"@y\"."},
    {"variableInSelect", "select @@version", "Must declare the scalar variable \"@@version\"."},
    {"parameterMark", "select a from T where b = ?", "Incorrect syntax near '?'."},
    {"hash", "select a from #T", "Incorrect syntax near '#'."},
    {"backtick", "select `a` from T", "Incorrect syntax near '`'."},
    {"concatenation", "select 'a' + 'b'", "Incorrect syntax near '+'."},
    {"bars", "select 'a' || 'b'", "Incorrect syntax near '|'."},
    {"wordInNumber", "exec X 1e", "Incorrect syntax near '1e'."},
    {"hugeNumber", "exec X 1e999", "The number '1e999' is out of range."},
    {"drop", "drop table Servers", "The statement 'drop' is not run here."},
    {"create", "CREATE TABLE T (a int)", "The statement 'CREATE' is not run here."},
    {"transaction", "begin transaction", "The statement 'begin' is not run here."},
    {"startsWithKeyword", "from T select a", "Incorrect syntax near 'from'."},
    {"startsWithNumber", "1", "Incorrect syntax near '1'."},
    {"unknownFunction", "select load_extension('x')",
     "'load_extension' is not a recognized built-in function name."},
    {"engineTable", "select * from sqlite_master", "Invalid object name 'sqlite_master'."},
    {"enginePragma", "select * from [pragma_table_info]",
     "Invalid object name 'pragma_table_info'."},
    {"nulCharacter", std::string("exec X 1\0, 2", 12), "Incorrect syntax near '\\0'."},
};

INSTANTIATE_TEST_SUITE_P(Reader, Refuses, testing::ValuesIn(refused), readerCaseName);

TEST(Reader, DividesHostileTextWithoutHarm) {
  const std::string pieces = "'\"[]()-/*@N0.e;=<>! \n\xC3\xFFx";
  unsigned state = 12345;
  for (int round = 0; round < 5000; ++round) {
    std::string sql;
    for (int at = 0; at < 30; ++at) {
      state = state * 1664525U + 1013904223U;
      sql.push_back(pieces[(state >> 16U) % pieces.size()]);
    }
    try {
      readBatch(sql);
    } catch (const RunTimeError& error) {
      EXPECT_FALSE(error.description().empty());
    }
  }
}

}  // namespace
}  // namespace pelorin::site

#include <gtest/gtest.h>

#include <iostream>
#include <limits>
#include <locale>

#include "component/attributes/FlushedOutput.h"
#include "component/attributes/OutputText.h"
#include "component/manager/CVSStage.h"

namespace {

class PrintCommTime : public testing::Test, protected CVSStage {
protected:
  PrintCommTime() { Products.Add("car", "proj/car"); }

  std::string Printed(ZRKECVSManager& manager) {
    const CapturedOutput output;
    EXPECT_EQ(manager.PrintCommTime(), S_OK);
    return OutputText(output);
  }
};

}  // namespace

TEST_F(PrintCommTime, IsPrintedAndThenZero) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234;
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 1234\n");
  EXPECT_EQ(manager.CommTime, 0);
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 0\n");
}

TEST_F(PrintCommTime, IsPrintedAsASignedNumberOf64Bits) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 9223372036854775807\n");
  manager.CommTime = -5;
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: -5\n");
}

TEST_F(PrintCommTime, IsPrintedInDecimalDigitsAloneWhateverTheFormatOfTheStream) {
  struct Grouped : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234567;
  const std::locale before = std::cout.imbue(std::locale(std::locale::classic(), new Grouped));
  const std::ios::fmtflags flags = std::cout.flags(std::ios::hex | std::ios::showbase | std::ios::showpos);
  const std::string printed = Printed(manager);
  std::cout.flags(flags);
  std::cout.imbue(before);
  EXPECT_EQ(printed, " Total CVS Comm Time: 1234567\n");
}

TEST_F(PrintCommTime, IsFlushedWhenItIsPrinted) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234;
  const FlushedOutput output;
  manager.PrintCommTime();
  EXPECT_EQ(output.Text(), " Total CVS Comm Time: 1234\n");
}

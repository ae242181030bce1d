#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Checks.h"
#include "support/Assembly.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

// What the host check told, in order.
class CheckRows {
public:
  struct Row {
    std::string Check;
    int Result;
    std::string Found;
  };

  static void Report(void* context, const char* check, int result, const char* found) {
    static_cast<CheckRows*>(context)->rows_.push_back({check, result, found});
  }

  const std::vector<Row>& All() const { return rows_; }
  // The check of that name; one that was not told has the result -1.
  Row operator[](const std::string& check) const {
    for (const Row& row : rows_) {
      if (row.Check == check) return row;
    }
    return {check, -1, "not told"};
  }

  void ExpectFails(const std::string& check, const std::string& found) const {
    const Row row = (*this)[check];
    EXPECT_EQ(row.Result, ZRKHostCheckFails) << check;
    EXPECT_NE(row.Found.find(found), std::string::npos) << check << ": " << row.Found;
  }
  void ExpectNotSeen(const std::string& check, const std::string& missing) const {
    const Row row = (*this)[check];
    EXPECT_EQ(row.Result, ZRKHostCheckNotSeen) << check;
    EXPECT_EQ(row.Found, missing) << check;
  }

private:
  std::vector<Row> rows_;
};

// A host whose products are a car with two axles and a wheel below each; every check holds on it as it is.
class CheckedHost : public testing::Test {
protected:
  CheckedHost() {
    assembly_.Add("car", "car.CATProduct").Add("axle", "axle.CATProduct").Add("wheel", "wheel.CATPart");
    assembly_.Place("car", "axle.1", "axle").Place("car", "axle.2", "axle").Place("axle", "wheel.1", "wheel");
  }

  CATBaseUnknown_var Car() const { return assembly_.At("car"); }

  // All checks of that product, with the host's functions as the test made them.
  CheckRows Check(const CATBaseUnknown_var& product) const {
    CheckRows rows;
    zrk::hostcheck::Table table(&CheckRows::Report, &rows);
    zrk::hostcheck::CheckAll(table, *product.Get(), Host);
    return rows;
  }
  CheckRows Check() const { return Check(Car()); }

  zrk::hostcheck::HostFunctions Host;

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <utility>

namespace zrkhost {

// The look of every help of the program: all of it on one screen of 80 columns, each option one line.
class ShortHelp : public CLI::Formatter {
public:
  // `usage` is what stands behind "Usage: "; it says what is given without an option.
  explicit ShortHelp(std::string usage) : usage_(std::move(usage)) { column_width(22); }

  std::string make_usage(const CLI::App*, std::string) const override { return "Usage: " + usage_; }
  std::string make_positionals(const CLI::App*) const override { return ""; }
  std::string make_option_opts(const CLI::Option* option) const override {
    return option->get_type_size() == 0 ? "" : " " + option->get_type_name();
  }
  std::string make_footer(const CLI::App* app) const override { return app->get_footer(); }

private:
  std::string usage_;
};

}  // namespace zrkhost

#include "DoctorCommand.h"

#include <iostream>

#include "Doctor.h"

namespace orvane::tool {

void AddDoctorCommand(CLI::App& app, int& exitCode) {
  app.add_subcommand("doctor", "Examines this Windows: is Orvane installed, set up and working?")
      ->callback([&exitCode] {
        const DoctorReport report = Examine();
        std::cout << report.Text() << std::flush;
        if (!std::cout) throw std::runtime_error("standard output: cannot be written");
        exitCode = report.Faults() > 0 ? 1 : 0;
      });
}

}  // namespace orvane::tool

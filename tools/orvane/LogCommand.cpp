#include "LogCommand.h"

#include <CLI/CLI.hpp>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <stdexcept>
#include <thread>

#include "Host.h"
#include "HostFile.h"
#include "Interrupt.h"
#include "Listener.h"
#include "LogMessages.h"
#include "LogPrinter.h"
#include "LogReader.h"
#include "LogSummary.h"
#include "Progress.h"
#include "memory/Desktop.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

struct Arguments {
  std::string file;
  std::string operation;
  std::string address = "127.0.0.1";
  std::uint16_t port = 12000;
  bool follow = false;
  bool json = false;
};

/// One log from its beginning; a log that is begun anew needs another one.
class Reading {
 public:
  explicit Reading(const Arguments& arguments)
      : m_arguments(arguments), m_printer(arguments.json, arguments.operation) {}

  void Feed(std::string_view bytes) { m_reader.Feed(bytes); }
  void Flush() { m_reader.Flush(); }
  void End() { m_reader.End(); }

  void PrintSummary() const {
    if (m_arguments.json)
      std::cout << m_summary.Json() << '\n';
    else
      std::cout << '\n' << m_summary.Text();
  }

 private:
  const Arguments& m_arguments;
  CodePage m_codePage{HostSystem()->AnsiCharacters()};
  LogPrinter m_printer;
  LogSummary m_summary;
  LogReader m_reader{m_codePage, [this](const LogLine& line) {
                       m_summary.Add(line);
                       m_printer.Print(line);
                     }};
};

/// Feeds what the stream holds from where it stands; `reached` is told how many bytes came.
void FeedFrom(std::istream& stream, Reading& reading,
              const std::function<void(std::size_t)>& reached) {
  std::string bytes(0x10000, '\0');
  while (stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())) ||
         stream.gcount() > 0) {
    const auto count = static_cast<std::size_t>(stream.gcount());
    reading.Feed(std::string_view(bytes).substr(0, count));
    reached(count);
  }
}

void ReadWhole(const Arguments& arguments) {
  Reading reading(arguments);
  const bool standard = arguments.file == StandardStream;
  const fs::path path = HostPath(arguments.file);
  std::error_code error;
  std::ifstream file;
  if (!standard) file.open(path, std::ios::binary);
  if (!file || (!standard && fs::is_directory(path, error)))
    throw std::runtime_error("cannot be read");
  const std::uintmax_t size = fs::file_size(path, error);
  // Lines that are printed to the same terminal would be torn apart.
  Progress progress(error || IsTerminal(Stream::Output) ? 0 : size);
  std::uintmax_t position = 0;
  std::istream& stream = standard ? std::cin : file;
  FeedFrom(stream, reading,
           [&](std::size_t count) { progress.Reach("reading", position += count, size); });
  if (stream.bad()) throw std::runtime_error("cannot be read to its end");
  reading.End();
  reading.PrintSummary();
}

/// The file is opened for each look only: whoever writes a log does not share it.
void Follow(const Arguments& arguments) {
  const Interrupt interrupt;
  const fs::path path = HostPath(arguments.file);
  std::error_code error;
  if (fs::is_directory(path, error)) throw std::runtime_error("cannot be read");
  if (!fs::exists(path, error))
    std::cerr << "orvane: " << arguments.file << ": waiting for the file\n";
  auto reading = std::make_unique<Reading>(arguments);
  std::uintmax_t position = 0;
  while (!interrupt.Asked()) {
    const std::uintmax_t size = fs::file_size(path, error);
    if (!error && size < position) {
      reading = std::make_unique<Reading>(arguments);
      position = 0;
    }
    if (!error && size > position) {
      std::ifstream file(path, std::ios::binary);
      file.seekg(static_cast<std::streamoff>(position));
      FeedFrom(file, *reading, [&](std::size_t count) { position += count; });
      reading->Flush();
      std::cout.flush();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  }
  reading->PrintSummary();
}

void Read(const Arguments& arguments) {
  try {
    if (arguments.follow)
      Follow(arguments);
    else
      ReadWhole(arguments);
  } catch (const std::runtime_error& error) {
    std::cout.flush();
    throw std::runtime_error(arguments.file + ": " + error.what());
  }
  if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
}

/// One sender's messages and how they are printed.
struct Sender {
  Sender(int number, const Arguments& arguments, const CodePage& codePage)
      : printer(arguments.json, arguments.operation),
        messages(codePage, [this, number](const LogLine& line) { printer.Print(line, number); }) {}
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  LogPrinter printer;
  LogMessages messages;
};

void Listen(const Arguments& arguments) {
  const Interrupt interrupt;
  Listener listener(arguments.address, arguments.port);
  std::cerr << "orvane: listening at " << arguments.address << ", port " << listener.Port()
            << "; Ctrl+C ends it\n";
  const CodePage codePage(HostSystem()->AnsiCharacters());
  std::map<int, Sender> senders;
  const auto take = [&](int number, std::string_view bytes) {
    Sender& sender = senders.try_emplace(number, number, arguments, codePage).first->second;
    sender.messages.Feed(bytes);
    if (!bytes.empty()) return;
    if (const std::size_t pending = sender.messages.Pending())
      std::cerr << "orvane: sender " << number << " left within a message, after " << pending
                << " bytes of it\n";
    senders.erase(number);
  };
  while (!interrupt.Asked()) {
    listener.Wait(200, take);
    if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
  }
}

}  // namespace

void AddLogCommand(CLI::App& app) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* log = app.add_subcommand("log", "Reads the debug and the timing log");
  log->require_subcommand(1);

  CLI::App* read = log->add_subcommand("read", "Prints a log, plain or scrambled, and its sums");
  read->add_option("FILE", arguments->file, "The log, such as Debug.dbg, - for standard input")
      ->required();
  read->add_flag("--follow", arguments->follow, "Go on with what is written, until Ctrl+C");

  CLI::App* listen =
      log->add_subcommand("listen", "Prints what logs send over the network, until Ctrl+C");
  listen->add_option("--port", arguments->port, "Where to listen; 0 for any free port")
      ->capture_default_str();
  listen
      ->add_option("--address", arguments->address,
                   "The own address to listen at; 0.0.0.0 lets other machines in")
      ->capture_default_str();

  for (CLI::App* command : {read, listen}) {
    command->add_option("--operation", arguments->operation,
                        "Print only this operation and what it calls");
    command->add_flag("--json", arguments->json, "Print one JSON object a line");
  }
  read->callback([arguments] { Read(*arguments); });
  listen->callback([arguments] { Listen(*arguments); });
}

}  // namespace orvane::tool

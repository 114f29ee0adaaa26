#include "ui/console_run.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

/// What a run leaves behind, with the line ends of the log.
struct Outcome {
  int status = 0;
  std::string output;
  std::string errors;
};

std::string WithLogLineEnds(std::string_view text) {
  return ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\n", "\r\n");
}

class ConsoleRunTest : public testing::Test {
 protected:
  Outcome Check(LogOutput output, const std::optional<FindingsOutput>& findings = std::nullopt,
                const DeliveryOptions& delivery = {}) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Outcome outcome;
    outcome.status = CheckOnConsole(disk_, environment_, settings_, {output, findings, delivery});
    outcome.output = WithLogLineEnds(testing::internal::GetCapturedStdout());
    outcome.errors = WithLogLineEnds(testing::internal::GetCapturedStderr());
    return outcome;
  }

  MemoryDisk disk_;
  FixedEnvironment environment_;
  RunSettings settings_;
};

TEST_F(ConsoleRunTest, PrintsAndSavesTheSameLog) {
  settings_.controls.filesToCheck = "missing.ags";
  settings_.logFile = "log.txt";
  const Outcome outcome = Check(LogOutput::StandardOutput);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.output.find("missing.ags (1 of 1)\r\nFile not found\r\n"), std::string::npos);
  EXPECT_EQ(outcome.output, disk_.files["log.txt"]);
  EXPECT_EQ(outcome.errors, "missing.ags: File not found\r\n");
}

TEST_F(ConsoleRunTest, PrintsNothingWhereOnlyTheLogFileIsWanted) {
  settings_.controls.filesToCheck = "missing.ags";
  settings_.logFile = "log.txt";
  const Outcome outcome = Check(LogOutput::LogFileOnly);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_NE(disk_.files["log.txt"].find("File not found"), std::string::npos);
}

TEST_F(ConsoleRunTest, PrintsTheLogWhereThereIsNoLogFile) {
  settings_.controls.filesToCheck = "missing.ags";
  const Outcome printed = Check(LogOutput::StandardOutput);
  EXPECT_NE(printed.output.find("File not found"), std::string::npos);
  EXPECT_EQ(Check(LogOutput::LogFileOnly).output, printed.output);
}

TEST_F(ConsoleRunTest, PrintsTheWholeLogOnceWhereItCannotBeSaved) {
  settings_.controls.filesToCheck = "missing.ags";
  const std::string log = Check(LogOutput::StandardOutput).output;
  settings_.logFile = "log.txt";
  disk_.writeFailures["log.txt"] = {28, "No space left on device"};
  for (const LogOutput output : {LogOutput::StandardOutput, LogOutput::LogFileOnly}) {
    const Outcome outcome = Check(output);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, log);
    EXPECT_EQ(outcome.errors,
              "missing.ags: File not found\r\n"
              "Quorvane: Could not save to file log.txt\r\n"
              "Error:  28\r\n"
              "No space left on device\r\n");
  }
}

TEST_F(ConsoleRunTest, WritesNoLogWhereThereIsNothingToCheck) {
  settings_.logFile = "log.txt";
  const Outcome outcome = Check(LogOutput::StandardOutput);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "Check Files: Supply files to check\r\n");
  EXPECT_FALSE(disk_.files.contains("log.txt"));
}

constexpr std::string_view MissingFileAsData = R"("reason":"File not found")";

TEST_F(ConsoleRunTest, FindingsTakeThePlaceOfTheLog) {
  settings_.controls.filesToCheck = "missing.ags";
  const Outcome outcome =
      Check(LogOutput::StandardOutput, FindingsOutput{FindingsFormat::Json, ""});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.starts_with('{'));
  EXPECT_TRUE(outcome.output.ends_with("}\r\n"));
  EXPECT_NE(outcome.output.find(MissingFileAsData), std::string::npos);
  EXPECT_EQ(outcome.errors, "missing.ags: File not found\r\n");
}

TEST_F(ConsoleRunTest, FindingsInAFileLeaveTheLogAsItIs) {
  settings_.controls.filesToCheck = "missing.ags";
  const Outcome log = Check(LogOutput::StandardOutput);
  const Outcome outcome =
      Check(LogOutput::StandardOutput, FindingsOutput{FindingsFormat::Json, "findings.json"});
  EXPECT_EQ(outcome.status, log.status);
  EXPECT_EQ(outcome.output, log.output);
  EXPECT_EQ(outcome.errors, log.errors);
  EXPECT_NE(disk_.files["findings.json"].find(MissingFileAsData), std::string::npos);
  EXPECT_TRUE(disk_.files["findings.json"].ends_with("}\n"));
}

TEST_F(ConsoleRunTest, FindingsThatCannotBeSavedAreAFailure) {
  settings_.controls.filesToCheck = "missing.ags";
  const std::string log = Check(LogOutput::StandardOutput).output;
  disk_.writeFailures["findings.json"] = {28, "No space left on device"};
  const Outcome outcome =
      Check(LogOutput::StandardOutput, FindingsOutput{FindingsFormat::Json, "findings.json"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, log);
  EXPECT_EQ(outcome.errors,
            "missing.ags: File not found\r\n"
            "Quorvane: Could not save to file findings.json\r\n"
            "Error:  28\r\n"
            "No space left on device\r\n");
}

TEST_F(ConsoleRunTest, ALogThatCannotBeSavedDoesNotComeBetweenFindings) {
  settings_.controls.filesToCheck = "missing.ags";
  settings_.logFile = "log.txt";
  disk_.writeFailures["log.txt"] = {28, "No space left on device"};
  for (const LogOutput output : {LogOutput::StandardOutput, LogOutput::LogFileOnly}) {
    const Outcome outcome = Check(output, FindingsOutput{FindingsFormat::Json, ""});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.output.starts_with('{'));
    EXPECT_EQ(outcome.output.find("File:  missing.ags"), std::string::npos);
  }
}

TEST_F(ConsoleRunTest, ThereAreNoFindingsWhereThereIsNothingToCheck) {
  const Outcome outcome =
      Check(LogOutput::StandardOutput, FindingsOutput{FindingsFormat::Json, "findings.json"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_FALSE(disk_.files.contains("findings.json"));
}

TEST_F(ConsoleRunTest, WhatIsSaidOfTheWholeDeliveryIsPrintedAndSaved) {
  settings_.controls.filesToCheck = "missing.ags";
  settings_.logFile = "log.txt";
  const Outcome outcome = Check(LogOutput::StandardOutput, std::nullopt, {true, false, "", ""});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.ends_with("0 of 1\r\n\r\n")) << outcome.output;
  EXPECT_EQ(outcome.output, disk_.files["log.txt"]);
}

TEST_F(ConsoleRunTest, ChecksNothingWhereTheBaselineCannotBeUsed) {
  settings_.controls.filesToCheck = "missing.ags";
  settings_.logFile = "log.txt";
  const Outcome outcome =
      Check(LogOutput::StandardOutput, std::nullopt, {false, false, "old.json", ""});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "Quorvane: Baseline file 'old.json' does not exist.\r\n");
  EXPECT_FALSE(disk_.files.contains("log.txt"));
}

}  // namespace
}  // namespace quorvane::test

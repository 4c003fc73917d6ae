#include "driver/ChildProcess.h"

#include <stdexcept>

#include "driver/Text.h"

namespace gui {
namespace {

HANDLE SharedJob() {
  static const OwnedHandle job = [] {
    OwnedHandle created(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(created.get(), JobObjectExtendedLimitInformation, &limits,
                            sizeof limits);
    return created;
  }();
  return job.get();
}

struct Pipe {
  OwnedHandle readEnd;
  OwnedHandle writeEnd;  // inheritable
};

Pipe CreateOutputPipe() {
  SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  if (!CreatePipe(&readEnd, &writeEnd, &inheritable, 0)) throw std::runtime_error("no pipe");
  SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
  return {OwnedHandle(readEnd), OwnedHandle(writeEnd)};
}

}  // namespace

ChildProcess::ChildProcess(const std::filesystem::path& program, std::string_view arguments,
                           const std::filesystem::path& folder, Output output) {
  std::wstring line = L"\"" + program.wstring() + L"\"";
  if (!arguments.empty()) line += L" " + ToWide(arguments);

  STARTUPINFOW start = {};
  start.cb = sizeof start;
  Pipe pipe;
  if (output != Output::kIgnored) {
    pipe = CreateOutputPipe();
    start.dwFlags = STARTF_USESTDHANDLES;
    (output == Output::kRead ? start.hStdOutput : start.hStdError) = pipe.writeEnd.get();
  }
  // Suspended, so that it cannot start a process of its own before it belongs to the job.
  PROCESS_INFORMATION started = {};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, output != Output::kIgnored,
                      CREATE_SUSPENDED, nullptr, folder.c_str(), &start, &started)) {
    throw std::runtime_error("cannot start " + program.string() + ", error " +
                             std::to_string(GetLastError()));
  }
  process_.reset(started.hProcess);
  const OwnedHandle thread(started.hThread);
  id_ = started.dwProcessId;
  output_ = std::move(pipe.readEnd);
  AssignProcessToJobObject(SharedJob(), process_.get());
  ResumeThread(thread.get());
}

ChildProcess::~ChildProcess() { Kill(); }

bool ChildProcess::IsRunning() const {
  return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> ChildProcess::WaitForExit(Milliseconds deadline) const {
  if (WaitForSingleObject(process_.get(), static_cast<DWORD>(deadline.count())) != WAIT_OBJECT_0) {
    return std::nullopt;
  }
  DWORD code = 0;
  GetExitCodeProcess(process_.get(), &code);
  return code;
}

const std::string& ChildProcess::ReadOutput() {
  DWORD waiting = 0;
  while (PeekNamedPipe(output_.get(), nullptr, 0, nullptr, &waiting, nullptr) && waiting > 0) {
    std::string chunk(waiting, '\0');
    DWORD count = 0;
    if (!ReadFile(output_.get(), chunk.data(), waiting, &count, nullptr)) break;
    read_.append(chunk, 0, count);
  }
  return read_;
}

void ChildProcess::Kill() {
  if (!IsRunning()) return;
  TerminateProcess(process_.get(), 99);
  WaitForSingleObject(process_.get(), static_cast<DWORD>(kPatience.count()));
}

}  // namespace gui

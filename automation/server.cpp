#include "automation/server.h"

#include "automation/check_queue.h"
#include "automation/clients.h"
#include "automation/spell_object.h"
#include "automation/wake_window.h"
#include "platform/win32/handle.h"

#include <objbase.h>

#include <thread>

namespace wordhawk {
namespace {

/// How long the first client may take to come, and how long to stay for the next one.
constexpr ULONGLONG kFirstClient = 30'000;  // milliseconds
constexpr ULONGLONG kNextClient = 2'000;    // milliseconds
/// Between two attempts to close a window in which something is still open.
constexpr UINT kTryAgain = 50;  // milliseconds

/// Keeps the class known to the system, from a thread of the multithreaded apartment: the system
/// answers clients for as long as there is one.
class PublishedClass {
  public:
    explicit PublishedClass(const ServerParts& parts)
        : ready_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
          leave_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
          thread_([this, parts] { Publish(parts); }) {
        WaitForSingleObject(ready_.Get(), INFINITE);
    }
    ~PublishedClass() {
        SetEvent(leave_.Get());
        thread_.join();
    }
    PublishedClass(const PublishedClass&) = delete;
    PublishedClass& operator=(const PublishedClass&) = delete;

    bool Succeeded() const { return succeeded_; }

  private:
    void Publish(const ServerParts& parts) noexcept {
        if (SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {
            ComPointer<IUnknown> factory;
            DWORD cookie = 0;
            succeeded_ =
                SUCCEEDED(MakeSpellFactory(parts, factory.Out())) &&
                SUCCEEDED(CoRegisterClassObject(parts.library.class_id, factory.Get(),
                                                CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie));
            SetEvent(ready_.Get());
            WaitForSingleObject(leave_.Get(), INFINITE);
            if (succeeded_) CoRevokeClassObject(cookie);
        }
        SetEvent(ready_.Get());
        // Not CoUninitialize: it would wait for a client that was stopped in the middle of a call.
    }

    KernelHandle ready_;
    KernelHandle leave_;
    bool succeeded_ = false;
    std::thread thread_;
};

class Server {
  public:
    Server(const TypeLibrary& library, CheckHost& host)
        : host_(host),
          wake_([this] { Look(); }),
          clients_([this] { wake_.Wake(); }),
          queue_([this] { wake_.Wake(); }),
          parts_{library, queue_, clients_},
          idle_since_(GetTickCount64()) {}

    int Run() {
        if (!wake_.IsMade()) return 1;
        PublishedClass published(parts_);
        if (!published.Succeeded()) return 1;
        while (!MayEnd()) {
            if (!host_.WindowIsOpen()) {
                if (const std::shared_ptr<CheckJob> job = queue_.Take()) {
                    Do(*job);
                    continue;
                }
            }
            if (!WaitForMessages()) break;
        }
        return 0;
    }

  private:
    void Do(CheckJob& job) {
        try {
            job.result = host_.Check(job.arguments);
            job.outcome = S_OK;
        } catch (const std::bad_alloc&) {
            job.outcome = E_OUTOFMEMORY;
        } catch (...) {
            job.outcome = E_FAIL;
        }
        queue_.Finish();
    }

    /// Something happened on another thread: a job came, or a client went.
    void Look() {
        if (!queue_.CurrentIsAbandoned()) return;
        host_.CallerEnded();
        wake_.WakeLater(kTryAgain);
    }

    bool MayEnd() {
        const bool is_needed = host_.WindowIsOpen() || !queue_.Empty() || clients_.Any();
        if (is_needed || was_needed_) idle_since_ = GetTickCount64();
        was_needed_ = is_needed;
        if (is_needed || IdleTimeLeft() > 0) return false;
        // No new client may come between the last look and the end.
        CoSuspendClassObjects();
        if (queue_.Empty() && !clients_.Any()) return true;
        CoResumeClassObjects();
        return false;
    }
    DWORD IdleTimeLeft() const {
        const ULONGLONG limit = clients_.HadAny() ? kNextClient : kFirstClient;
        const ULONGLONG idle = GetTickCount64() - idle_since_;
        return idle >= limit ? 0 : static_cast<DWORD>(limit - idle);
    }

    /// False when the program is asked to end.
    bool WaitForMessages() {
        MsgWaitForMultipleObjectsEx(0, nullptr, was_needed_ ? INFINITE : IdleTimeLeft(),
                                    QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) return false;
            if (host_.PreTranslate(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        return true;
    }

    CheckHost& host_;
    WakeWindow wake_;
    Clients clients_;
    CheckQueue queue_;
    ServerParts parts_;
    ULONGLONG idle_since_;
    bool was_needed_ = false;
};

}  // namespace

int RunServer(const TypeLibrary& library, CheckHost& host) {
    // Never deleted: the threads that answer clients which were killed, and the objects that these
    // left behind, may outlive the loop; they go with the process.
    auto* const server = new Server(library, host);
    return server->Run();
}

}  // namespace wordhawk

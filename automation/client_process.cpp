#include "automation/client_process.h"

#include <rpc.h>

namespace wordhawk {
namespace {

DWORD CallersId() {
    unsigned long id = 0;
    return I_RpcBindingInqLocalClientPID(nullptr, &id) == RPC_S_OK ? id : 0;
}

}  // namespace

std::shared_ptr<const ClientProcess> ClientProcess::OfThisCall(
    const std::function<void()>& on_end) {
    auto client = std::make_shared<ClientProcess>();
    const DWORD id = CallersId();
    if (id == 0 || id == GetCurrentProcessId()) return client;
    client->process_ = KernelHandle(OpenProcess(SYNCHRONIZE, FALSE, id));
    if (!client->process_) return client;
    client->id_ = id;
    client->on_end_ = on_end;
    const WAITORTIMERCALLBACK ended = [](void* context, BOOLEAN) {
        static_cast<ClientProcess*>(context)->on_end_();
    };
    if (!RegisterWaitForSingleObject(&client->wait_, client->process_.Get(), ended, client.get(),
                                     INFINITE, WT_EXECUTEONLYONCE)) {
        client->wait_ = nullptr;
    }
    return client;
}

ClientProcess::~ClientProcess() {
    // Waits for a callback that is under way.
    if (wait_ != nullptr) UnregisterWaitEx(wait_, INVALID_HANDLE_VALUE);
}

bool ClientProcess::HasEnded() const {
    return process_ && WaitForSingleObject(process_.Get(), 0) == WAIT_OBJECT_0;
}

}  // namespace wordhawk

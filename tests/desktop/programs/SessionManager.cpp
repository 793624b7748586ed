// A desktop's session manager, as far as a program notices it: SIGUSR1 ends the session and lets programs ask
// their users, SIGUSR2 ends it at once. Says on its output where it listens and what the program answers.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

volatile std::sig_atomic_t wanted = 0;
bool ending = false;
std::vector<IceConn> connections;
SmsConn client = nullptr;

void say(const char* what) {
    std::printf("%s\n", what);
    std::fflush(stdout);
}

Status registered(SmsConn connection, SmPointer, char* previous) {
    std::free(previous);
    SmsRegisterClientReply(connection, SmsGenerateClientID(connection));
    client = connection;
    say("registered");
    return 1;
}

void asksForInteraction(SmsConn connection, SmPointer, int) {
    say("asks");
    SmsInteract(connection);
}

void interactionDone(SmsConn connection, SmPointer, Bool cancel) {
    say(cancel ? "cancels" : "has asked");
    if (!cancel)
        return;
    ending = false;
    SmsShutdownCancelled(connection);
}

void asksForLastPhase(SmsConn connection, SmPointer) {
    SmsSaveYourselfPhase2(connection);
}

void saved(SmsConn connection, SmPointer, Bool) {
    if (!ending)
        return;
    say("is ready");
    SmsDie(connection);
}

void closed(SmsConn connection, SmPointer, int count, char** reasons) {
    SmFreeReasons(count, reasons);
    IceConn under = SmsGetIceConnection(connection);
    SmsCleanUp(connection);
    IceSetShutdownNegotiation(under, False);
    IceCloseConnection(under);
    client = nullptr;
    say("has left");
}

void setProperties(SmsConn, SmPointer, int count, SmProp** properties) {
    for (int i = 0; i < count; ++i)
        SmFreeProperty(properties[i]);
    std::free(properties);
}

void deleteProperties(SmsConn, SmPointer, int, char**) {}

void giveProperties(SmsConn connection, SmPointer) {
    SmsReturnProperties(connection, 0, nullptr);
}

void saveAsked(SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}

Status welcome(SmsConn, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) {
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    *callbacks = {};
    callbacks->register_client.callback = registered;
    callbacks->interact_request.callback = asksForInteraction;
    callbacks->interact_done.callback = interactionDone;
    callbacks->save_yourself_request.callback = saveAsked;
    callbacks->save_yourself_phase2_request.callback = asksForLastPhase;
    callbacks->save_yourself_done.callback = saved;
    callbacks->close_connection.callback = closed;
    callbacks->set_properties.callback = setProperties;
    callbacks->delete_properties.callback = deleteProperties;
    callbacks->get_properties.callback = giveProperties;
    return 1;
}

// Whoever finds the socket may come in: it is a test's own.
Bool anybody(char*) {
    return True;
}

void endSession(int signal) {
    if (client == nullptr)
        return;
    ending = true;
    const int style = signal == SIGUSR1 ? SmInteractStyleAny : SmInteractStyleNone;
    SmsSaveYourself(client, SmSaveBoth, True, style, False);
}

void accept(IceListenObj listener) {
    IceAcceptStatus status{};
    IceConn connection = IceAcceptConnection(listener, &status);
    if (connection != nullptr)
        connections.push_back(connection);
}

void hear(IceConn connection) {
    const IceProcessMessagesStatus status = IceProcessMessages(connection, nullptr, nullptr);
    if (status == IceProcessMessagesSuccess)
        return;
    if (status == IceProcessMessagesIOError)
        IceCloseConnection(connection);
    std::erase(connections, connection);
}

void serve(const std::vector<IceListenObj>& listeners) {
    std::vector<pollfd> watched;
    for (IceListenObj listener : listeners)
        watched.push_back({IceGetListenConnectionNumber(listener), POLLIN, 0});
    const std::vector<IceConn> open = connections;
    for (IceConn connection : open)
        watched.push_back({IceConnectionNumber(connection), POLLIN, 0});
    // A signal between here and the last look at it is found a little later.
    poll(watched.data(), watched.size(), 50);
    for (std::size_t i = 0; i < watched.size(); ++i)
        if ((watched[i].revents & (POLLIN | POLLHUP)) != 0)
            i < listeners.size() ? accept(listeners[i]) : hear(open[i - listeners.size()]);
    if (const int signal = wanted; signal != 0) {
        wanted = 0;
        endSession(signal);
    }
}

} // namespace

int main() {
    std::signal(SIGUSR1, [](int number) { wanted = number; });
    std::signal(SIGUSR2, [](int number) { wanted = number; });
    // Where no desktop has run yet nobody has made the folder of these sockets.
    if (mkdir("/tmp/.ICE-unix", 0777) == 0)
        chmod("/tmp/.ICE-unix", 01777);
    char vendor[] = "tests";
    char release[] = "1";
    std::string error(256, '\0');
    int count = 0;
    IceListenObj* found = nullptr;
    if (!SmsInitialize(vendor, release, welcome, nullptr, anybody, 256, error.data()) ||
        !IceListenForConnections(&count, &found, 256, error.data())) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    const std::vector<IceListenObj> listeners(found, found + count);
    // Of itself the library would end this program with the connection to another.
    IceSetIOErrorHandler([](IceConn) {});
    for (IceListenObj listener : listeners)
        IceSetHostBasedAuthProc(listener, anybody);
    std::printf("listens %s\n", IceComposeNetworkIdList(count, found));
    std::fflush(stdout);
    for (;;)
        serve(listeners);
}

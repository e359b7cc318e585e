"""A small session manager of X11: prints its address, then what its client does; takes the calls
of a session from its input: "checkpoint", "logout", "cancel" and "die"."""

import ctypes
import select
import sys
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

ICE, SM = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
for name in ("IceComposeNetworkIdList", "IceAcceptConnection"):
    getattr(ICE, name).restype = c_void_p
SM.SmsGenerateClientID.restype = c_void_p
SAVE_BOTH, SAVE_LOCAL, ANY = 2, 1, 2
kept, client = [], None


def proc(result, *arguments):
    """Makes a callback of C, which has to be kept."""
    def make(function):
        kept.append(CFUNCTYPE(result, *arguments)(function))
        return kept[-1]
    return make


def tell(*words):
    print(*words, flush=True)


def save_yourself(kind, shutdown, fast=0):
    SM.SmsSaveYourself(c_void_p(client), kind, shutdown, ANY if shutdown else 0, fast)


@proc(c_int, c_void_p, c_void_p, c_void_p)
def register(connection, _data, _previous):
    SM.SmsRegisterClientReply(c_void_p(connection),
                              c_void_p(SM.SmsGenerateClientID(c_void_p(connection))))
    save_yourself(SAVE_LOCAL, 0)
    return 1


@proc(None, c_void_p, c_void_p, c_int)
def done(_connection, _data, success):
    tell("done", success)
    SM.SmsSaveComplete(c_void_p(client))


@proc(None, c_void_p, c_void_p, c_int)
def interact(connection, _data, _kind):
    tell("interact")
    SM.SmsInteract(c_void_p(connection))


@proc(None, c_void_p, c_void_p, c_int, c_void_p)
def closed(_connection, _data, _count, _reasons):
    tell("closed")


@proc(None, c_void_p, c_void_p, c_void_p, c_void_p)
def ignore(*_arguments):
    pass


@proc(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(c_void_p * 20), c_void_p)
def new_client(connection, _data, mask, callbacks, _reason):
    global client  # pylint: disable=global-statement
    client, mask[0] = connection, 0x3FF
    calls = [register, interact, ignore, ignore, ignore, done, closed, ignore, ignore, ignore]
    for i, call in enumerate(calls):
        callbacks[0][2 * i] = ctypes.cast(call, c_void_p)
    return 1


@proc(c_int, c_char_p)
def welcome(_host):
    return 1


def main():
    error, count, listeners = ctypes.create_string_buffer(200), c_int(), POINTER(c_void_p)()
    assert SM.SmsInitialize(b"tests", b"1", new_client, None, welcome, 200, error), error.value
    assert ICE.IceListenForConnections(byref(count), byref(listeners), 200, error), error.value
    doors = {}
    for i in range(count.value):
        ICE.IceSetHostBasedAuthProc(c_void_p(listeners[i]), welcome)
        doors[ICE.IceGetListenConnectionNumber(c_void_p(listeners[i]))] = listeners[i]
    tell(ctypes.string_at(ICE.IceComposeNetworkIdList(count, listeners)).decode())
    guests = {}
    while True:
        for ready in select.select([0, *doors, *guests], [], [])[0]:
            if ready in doors:
                guest = ICE.IceAcceptConnection(c_void_p(doors[ready]), byref(c_int()))
                guests[ICE.IceConnectionNumber(c_void_p(guest))] = guest
            elif ready in guests:
                if ICE.IceProcessMessages(c_void_p(guests[ready]), None, None) != 0:
                    del guests[ready]
            else:
                call = sys.stdin.buffer.raw.readline().strip().decode()
                if not call:
                    return
                {"checkpoint": lambda: save_yourself(SAVE_BOTH, 0),
                 "logout": lambda: save_yourself(SAVE_BOTH, 1),
                 "cancel": lambda: SM.SmsShutdownCancelled(c_void_p(client)),
                 "die": lambda: SM.SmsDie(c_void_p(client))}[call]()


main()

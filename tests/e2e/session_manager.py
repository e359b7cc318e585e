"""A small session manager of X11: prints its address, then what its client does; takes the calls
of a session from its input: "checkpoint", "logout", "cancel" and "die"."""

import ctypes
import select
import sys
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

ICE, SM = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
for made in (ICE.IceComposeNetworkIdList, ICE.IceAcceptConnection, SM.SmsGenerateClientID):
    made.restype = c_void_p
SAVE_BOTH, SAVE_LOCAL, ANY = 2, 1, 2
client = None


def save_yourself(kind, shutdown, fast=0):
    SM.SmsSaveYourself(c_void_p(client), kind, shutdown, ANY if shutdown else 0, fast)


@CFUNCTYPE(c_int, c_void_p, c_void_p, c_void_p)
def register(connection, _data, _previous):
    SM.SmsRegisterClientReply(c_void_p(connection),
                              c_void_p(SM.SmsGenerateClientID(c_void_p(connection))))
    save_yourself(SAVE_LOCAL, 0)
    return 1


@CFUNCTYPE(None, c_void_p, c_void_p, c_int)
def done(_connection, _data, success):
    print("done", success, flush=True)
    SM.SmsSaveComplete(c_void_p(client))


@CFUNCTYPE(None, c_void_p, c_void_p, c_void_p, c_void_p)
def ignore(*_arguments):
    pass


@CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(c_void_p * 20), c_void_p)
def new_client(connection, _data, mask, callbacks, _reason):
    global client  # pylint: disable=global-statement
    client, mask[0] = connection, 0x3FF
    for i in range(10):
        callbacks[0][2 * i] = ctypes.cast({0: register, 5: done}.get(i, ignore), c_void_p)
    return 1


@CFUNCTYPE(c_int, c_char_p)
def welcome(_host):
    return 1


def main():
    error, count, doors = ctypes.create_string_buffer(200), c_int(), POINTER(c_void_p)()
    assert SM.SmsInitialize(b"tests", b"1", new_client, None, welcome, 200, error), error.value
    assert ICE.IceListenForConnections(byref(count), byref(doors), 200, error), error.value
    door = c_void_p(doors[count.value - 1])  # those of the network come first
    ICE.IceSetHostBasedAuthProc(door, welcome)
    print(ctypes.string_at(ICE.IceComposeNetworkIdList(1, byref(door))).decode(), flush=True)
    guest = c_void_p(ICE.IceAcceptConnection(door, byref(c_int())))
    number = ICE.IceConnectionNumber(guest)
    while True:
        ready = select.select([0, number], [], [])[0]
        if number in ready and ICE.IceProcessMessages(guest, None, None) != 0:
            return
        if 0 in ready:
            call = sys.stdin.buffer.raw.readline().strip().decode()
            if not call:
                return
            {"checkpoint": lambda: save_yourself(SAVE_BOTH, 0),
             "logout": lambda: save_yourself(SAVE_BOTH, 1),
             "cancel": lambda: SM.SmsShutdownCancelled(c_void_p(client)),
             "die": lambda: SM.SmsDie(c_void_p(client))}[call]()


main()

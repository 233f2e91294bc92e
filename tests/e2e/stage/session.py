# SPDX-License-Identifier: GPL-3.0-or-later
"""A session manager of the X Window System: programs that are started while it listens join the
session, and a logout is announced to them."""
import ctypes
import os
import select
import threading

ice = ctypes.CDLL("libICE.so.6")
sm = ctypes.CDLL("libSM.so.6")

ice.IceComposeNetworkIdList.restype = ctypes.c_char_p
ice.IceAcceptConnection.restype = ctypes.c_void_p
sm.SmsGenerateClientID.restype = ctypes.c_void_p
sm.SmsGetIceConnection.restype = ctypes.c_void_p

pointer = ctypes.c_void_p
number = ctypes.c_int

SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE, INTERACT_ANY = 0, 2
LOOK = 0.02  # seconds

Status = ctypes.CFUNCTYPE(number, pointer, pointer, pointer)
HostAllowed = ctypes.CFUNCTYPE(number, ctypes.c_char_p)
Failed = ctypes.CFUNCTYPE(None, pointer)

# What clients tell, in the order of the library's structure of callbacks, with their arguments
# after the connection and the manager's own pointer.
Callbacks = {
    "register_client": ctypes.CFUNCTYPE(number, pointer, pointer, pointer),
    "interact_request": ctypes.CFUNCTYPE(None, pointer, pointer, number),
    "interact_done": ctypes.CFUNCTYPE(None, pointer, pointer, number),
    "save_yourself_request": ctypes.CFUNCTYPE(
        None, pointer, pointer, number, number, number, number, number),
    "save_yourself_phase2_request": ctypes.CFUNCTYPE(None, pointer, pointer),
    "save_yourself_done": ctypes.CFUNCTYPE(None, pointer, pointer, number),
    "close_connection": ctypes.CFUNCTYPE(None, pointer, pointer, number, pointer),
    "set_properties": ctypes.CFUNCTYPE(None, pointer, pointer, number, pointer),
    "delete_properties": ctypes.CFUNCTYPE(None, pointer, pointer, number, pointer),
    "get_properties": ctypes.CFUNCTYPE(None, pointer, pointer),
}


class CallbackTable(ctypes.Structure):
    _fields_ = [field for name in Callbacks for field in ((name, pointer), (f"{name}_data", pointer))]


NewClient = ctypes.CFUNCTYPE(
    number, pointer, pointer, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(CallbackTable), pointer)


# The libraries keep those that the first manager gave them for as long as the process runs.
allowed = HostAllowed(lambda _: 1)
failed = Failed(lambda _: None)


class SessionManager:
    """For one client. Its home folder must be settled before."""

    def __init__(self):
        self.client = None
        self.is_saved = False      # the client has answered what it was last told
        self.is_cancelled = False  # by the client
        self._logging_out = False
        self._ends = False
        self._connection = None
        self._lock = threading.Lock()
        self._callbacks = {
            name: kind(getattr(self, "_" + name, lambda *_: None))
            for name, kind in Callbacks.items()
        }
        self._new_client_callback = NewClient(self._new_client)

    def __enter__(self):
        ice.IceSetIOErrorHandler(failed)
        error = ctypes.create_string_buffer(256)
        assert sm.SmsInitialize(b"tests", b"1", self._new_client_callback, None, allowed,
                                len(error), error), error.value
        self._count = number()
        self._listeners = ctypes.POINTER(pointer)()
        assert ice.IceListenForConnections(ctypes.byref(self._count), ctypes.byref(self._listeners),
                                           len(error), error), error.value
        for listener in self._listeners[:self._count.value]:
            ice.IceSetHostBasedAuthProc(pointer(listener), allowed)
        os.environ["SESSION_MANAGER"] = ice.IceComposeNetworkIdList(
            self._count, self._listeners).decode()
        self._thread = threading.Thread(target=self._serve)
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._ends = True
        self._thread.join()
        ice.IceFreeListenObjs(self._count, self._listeners)
        del os.environ["SESSION_MANAGER"]

    def logs_out(self):
        with self._lock:
            self.is_saved = self.is_cancelled = False
            self._logging_out = True
            sm.SmsSaveYourself(pointer(self.client), SAVE_BOTH, 1, INTERACT_ANY, 0)

    def _serve(self):
        numbers = {ice.IceGetListenConnectionNumber(pointer(listener)): listener
                   for listener in self._listeners[:self._count.value]}
        while not self._ends:
            files = list(numbers)
            if self._connection:
                files.append(ice.IceConnectionNumber(pointer(self._connection)))
            readable, _, _ = select.select(files, [], [], LOOK)
            with self._lock:
                for file in readable:
                    if file in numbers:
                        status = number()
                        self._connection = ice.IceAcceptConnection(
                            pointer(numbers[file]), ctypes.byref(status))
                    elif ice.IceProcessMessages(pointer(self._connection), None, None) != 0:
                        self._connection = None

    # What the client tells

    def _new_client(self, client, _data, mask, table, _reason):
        self.client = client
        mask[0] = (1 << len(Callbacks)) - 1
        for name, callback in self._callbacks.items():
            setattr(table[0], name, ctypes.cast(callback, pointer))
        return 1

    def _register_client(self, client, _data, previous):
        if previous:
            return 0
        sm.SmsRegisterClientReply(pointer(client), pointer(sm.SmsGenerateClientID(pointer(client))))
        sm.SmsSaveYourself(pointer(client), SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def _interact_request(self, client, _data, _kind):
        sm.SmsInteract(pointer(client))

    def _interact_done(self, client, _data, cancelled):
        if cancelled:
            self.is_cancelled = True
            self._logging_out = False
            sm.SmsShutdownCancelled(pointer(client))

    def _save_yourself_phase2_request(self, client, _data):
        sm.SmsSaveYourselfPhase2(pointer(client))

    def _save_yourself_done(self, client, _data, _success):
        self.is_saved = True
        if self._logging_out:
            sm.SmsDie(pointer(client))
        else:
            sm.SmsSaveComplete(pointer(client))

    def _get_properties(self, client, _data):
        sm.SmsReturnProperties(pointer(client), 0, None)

    def _close_connection(self, client, _data, _count, _reasons):
        self.client = None
        sm.SmsCleanUp(pointer(client))
        ice.IceSetShutdownNegotiation(pointer(self._connection), 0)
        ice.IceCloseConnection(pointer(self._connection))
        self._connection = None

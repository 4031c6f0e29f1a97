# SPDX-License-Identifier: GPL-3.0-or-later
"""A session manager, as far as the end of a session takes one: the X Session Management Protocol over ICE.

A message is two opcodes, two bytes of its own, the length of what follows in units of 8 bytes, and that.
"""
import os
import socket
import struct
import threading

from desktop import LIMIT, TourError

ICE = 0  # major opcode of the connection itself
BYTE_ORDER, CONNECTION_SETUP, CONNECTION_REPLY, PROTOCOL_SETUP, PROTOCOL_REPLY = 1, 2, 6, 7, 8
XSMP = 1  # ours for the sessions
REGISTER, REGISTER_REPLY, SAVE_YOURSELF, SAVE_DONE, SHUTDOWN_CANCELLED = 1, 2, 3, 8, 10
SAVE_BOTH = 2  # the session's state and what a person has not saved


def padded(data, unit):
    return data + bytes(-len(data) % unit)


def string(text):
    return padded(struct.pack("<H", len(text)) + text, 4)


class Client:
    """One program of the session."""

    def __init__(self, stream):
        self.stream = stream
        self.registered = False
        self.saved = threading.Event()

    def send(self, major, minor, data=b"\0\0", body=b""):
        body = padded(body, 8)
        self.stream.sendall(struct.pack("<BB2sI", major, minor, data, len(body) // 8) + body)

    def receive(self, size):
        data = b""
        while len(data) < size:
            more = self.stream.recv(size - len(data))
            if not more:
                raise ConnectionError
            data += more
        return data

    def serve(self):
        self.send(ICE, BYTE_ORDER)
        while True:
            major, minor, data, length = struct.unpack("<BB2sI", self.receive(8))
            self.receive(length * 8)
            names = string(b"tour") + string(b"1")
            if (major, minor) == (ICE, CONNECTION_SETUP):
                self.send(ICE, CONNECTION_REPLY, body=names)
            elif (major, minor) == (ICE, PROTOCOL_SETUP):
                self.send(ICE, PROTOCOL_REPLY, bytes([0, XSMP]), names)
            elif major != ICE and minor == REGISTER:
                name = f"tour-{id(self)}".encode()
                self.send(XSMP, REGISTER_REPLY, body=struct.pack("<I", len(name)) + name)
                self.registered = True
            elif major != ICE and minor == SAVE_DONE:
                self.saved.set()


class SessionManager:
    """Programs that are started with SESSION_MANAGER set to its `address` belong to its session."""

    def __init__(self, folder):
        path = os.path.join(folder, "session")
        self.address = f"unix/{socket.gethostname()}:{path}"
        self.clients = []
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(path)
        self.listener.listen()
        threading.Thread(target=self._accept, daemon=True).start()

    def _accept(self):
        while True:
            client = Client(self.listener.accept()[0])
            self.clients.append(client)
            threading.Thread(target=self._serve, args=(client,), daemon=True).start()

    def _serve(self, client):
        try:
            client.serve()
        except OSError:
            self.clients.remove(client)

    def ask_to_save(self):
        """The session is about to end; returns when every program has answered."""
        clients = [client for client in self.clients if client.registered]
        if not clients:
            raise TourError("no program belongs to the session")
        for client in clients:
            client.saved.clear()
            client.send(XSMP, SAVE_YOURSELF, body=bytes([SAVE_BOTH, 1, 0, 0]))
        for client in clients:
            if not client.saved.wait(LIMIT):
                raise TourError("a program did not answer the session's end")

    def call_off(self):
        """The session goes on."""
        for client in [client for client in self.clients if client.registered]:
            client.send(XSMP, SHUTDOWN_CANCELLED)

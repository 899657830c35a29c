"""A stand-in for the desktop's portal: lets a screen of PipeWire's be recorded.

    portal.py NODE LOG [refuse|silent|old]

Says "ready" once it is on the session's bus. The log has a line of JSON for each call: its name and options. Ends the
session at a line of standard input, itself with it.
"""
import json
import os
import socket
import sys

from gi.repository import Gio, GLib

PATH = '/org/freedesktop/portal/desktop'
CAST = 'org.freedesktop.portal.ScreenCast'
INTERFACES = '''<node><interface name="org.freedesktop.portal.ScreenCast">
<method name="CreateSession"><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
<method name="SelectSources"><arg type="o" direction="in"/><arg type="a{sv}" direction="in"/>
<arg type="o" direction="out"/></method>
<method name="Start"><arg type="o" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
<arg type="o" direction="out"/></method>
<method name="OpenPipeWireRemote"><arg type="o" direction="in"/><arg type="a{sv}" direction="in"/>
<arg type="h" direction="out"/></method>
<property name="version" type="u" access="read"/><property name="AvailableSourceTypes" type="u" access="read"/>
<property name="AvailableCursorModes" type="u" access="read"/></interface></node>'''
SESSION = PATH + '/session/stand_in'


class Portal:
    def __init__(self, node, log, manner):
        self.node, self.log, self.manner = node, log, manner
        self.tokens = 0
        self.client = None
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACES).lookup_interface(CAST)
        self.bus.register_object(PATH, interface, self.called, self.asked, None)

    def asked(self, connection, sender, path, interface, name):
        return GLib.Variant('u', {'version': 2 if self.manner == 'old' else 4, 'AvailableSourceTypes': 7,
                                  'AvailableCursorModes': 3}[name])

    def called(self, connection, sender, path, interface, name, parameters, invocation):
        options = parameters.unpack()[-1]
        self.log.write(json.dumps([name, options]) + '\n')
        self.client = sender
        if name == 'OpenPipeWireRemote':
            return self.give_remote(invocation)
        handle = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        results, code = {}, 0
        if name == 'CreateSession':
            results = {'session_handle': GLib.Variant('s', SESSION)}
        elif name == 'Start' and self.manner == 'silent':
            code = None
        elif name == 'Start' and self.manner == 'refuse':
            code = 1
        elif name == 'Start':
            self.tokens += 1
            results = {'streams': GLib.Variant('a(ua{sv})', [(self.node, {})]),
                       'restore_token': GLib.Variant('s', f'token {self.tokens}')}
        # Before the caller knows the request's name by the reply.
        if code is not None:
            self.emit(handle, 'org.freedesktop.portal.Request', 'Response',
                      GLib.Variant('(ua{sv})', (code, results)))
        invocation.return_value(GLib.Variant('(o)', (handle,)))

    def give_remote(self, invocation):
        connection = socket.socket(socket.AF_UNIX)
        connection.connect(os.path.join(os.environ['XDG_RUNTIME_DIR'], 'pipewire-0'))
        remotes = Gio.UnixFDList.new_from_array([connection.detach()])
        invocation.return_value_with_unix_fd_list(GLib.Variant('(h)', (0,)), remotes)

    def emit(self, path, interface, name, parameters):
        self.bus.emit_signal(self.client, path, interface, name, parameters)

    def close(self, *_):
        sys.stdin.readline()
        if self.client:
            self.emit(SESSION, 'org.freedesktop.portal.Session', 'Closed', GLib.Variant('(a{sv})', ({},)))
            self.bus.flush_sync()
        loop.quit()
        return False


node, log = sys.argv[1:3]
loop = GLib.MainLoop()
portal = Portal(int(node), open(log, 'a', buffering=1), (sys.argv[3:] or ['yes'])[0])
Gio.bus_own_name_on_connection(portal.bus, 'org.freedesktop.portal.Desktop', 0,
                               lambda *_: print('ready', flush=True), None)
GLib.io_add_watch(0, GLib.IO_IN | GLib.IO_HUP, portal.close)
loop.run()

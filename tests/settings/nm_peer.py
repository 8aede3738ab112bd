#!/usr/bin/python3
"""NetworkManager stand-in for the network settings tests: python-dbusmock's "networkmanager"
template on a private system bus, with a wired and a Wi-Fi device, a few access points and an
802.1X-capable settings connection at /org/freedesktop/NetworkManager/Settings/1.

Usage: nm_peer.py [--no-profiles]
Prints "BUS <address>" once ready, then reads commands on stdin:
  dump   prints the settings and secrets of Settings/1 as one JSON line ("DUMP {...}")
  calls  prints the method names Settings/1 received, in order ("CALLS [...]")
  reset  forgets the calls received so far ("RESET")
  refuse makes GetSettings of Settings/1 answer with an error ("REFUSING")
  remove takes Settings/1 off the bus ("REMOVED")
  quit   stops the bus and the mock
"""
import json
import os
import sys

import dbus
import dbusmock
from dbusmock.templates.networkmanager import (DeviceState, NM80211ApSecurityFlags, InfrastructureMode,
                                               MANAGER_IFACE, SETTINGS_OBJ, SETTINGS_IFACE)

CONNECTION_IFACE = 'org.freedesktop.NetworkManager.Settings.Connection'
DOT1X_PATH = SETTINGS_OBJ + '/1'
SECRET_KEYS = ('password', 'private-key-password', 'ca-cert-password', 'client-cert-password')


def plain(value):
    """dbus-python values as JSON: byte arrays as text (NUL kept), containers recursively."""
    if isinstance(value, dbus.ByteArray) or (isinstance(value, dbus.Array) and value.signature == 'y'):
        return bytes(bytearray(int(b) if not isinstance(b, (bytes, str)) else ord(b) for b in value)).decode('utf-8', 'replace')
    if isinstance(value, bytes):
        return value.decode('utf-8', 'replace')
    if isinstance(value, dict):
        return {str(k): plain(v) for k, v in value.items()}
    if isinstance(value, (list, tuple)):
        return [plain(v) for v in value]
    if isinstance(value, dbus.Boolean):
        return bool(value)
    if isinstance(value, (int, float)):
        return value
    return str(value)


def signatures(state):
    """The D-Bus type of every container value, "setting.key" -> signature, to see that types survive."""
    found = {}
    for name, setting in state.items():
        for key, value in setting.items():
            if isinstance(value, dbus.Array):
                found[name + '.' + key] = 'a' + (value.signature or '')
    return found


def main():
    no_profiles = '--no-profiles' in sys.argv
    dbusmock.DBusTestCase.start_system_bus()
    bus = dbusmock.DBusTestCase.get_dbus(system_bus=True)
    server, main_object = dbusmock.DBusTestCase.spawn_server_template(
        'networkmanager', {'NetworkingEnabled': True}, stdout=sys.stderr)
    mock = dbus.Interface(main_object, dbusmock.MOCK_IFACE)
    dbus_mock = dbus.Interface(main_object, dbusmock.MOCK_IFACE)

    wired = mock.AddEthernetDevice('mock_Ethernet1', 'enp1s0', DeviceState.ACTIVATED)
    mock.AddEthernetDevice('mock_Ethernet2', 'enp2s0', DeviceState.DISCONNECTED)
    wifi = mock.AddWiFiDevice('mock_WiFi1', 'wlan0', DeviceState.ACTIVATED)
    psk = NM80211ApSecurityFlags.NM_802_11_AP_SEC_KEY_MGMT_PSK
    corp = mock.AddAccessPoint(wifi, 'Mock_AP1', 'Corp WiFi', '00:23:F8:7E:12:BB', InfrastructureMode.NM_802_11_MODE_INFRA,
                               2425, 5400, 82, psk)
    mock.AddAccessPoint(wifi, 'Mock_AP2', 'Guest', '00:23:F8:7E:12:BC', InfrastructureMode.NM_802_11_MODE_INFRA,
                        2437, 5400, 55, NM80211ApSecurityFlags.NM_802_11_AP_SEC_NONE)
    mock.AddAccessPoint(wifi, 'Mock_AP3', '', '00:23:F8:7E:12:BD', InfrastructureMode.NM_802_11_MODE_INFRA,
                        2462, 5400, 40, psk)
    mock.AddAccessPoint(wifi, 'Mock_AP4', 'Café "Lounge"', '00:23:F8:7E:12:BE', InfrastructureMode.NM_802_11_MODE_INFRA,
                        5180, 5400, 67, psk)
    if not no_profiles:
        con = mock.AddWiFiConnection(wifi, 'Mock_Con1', 'Corp WiFi', 'wpa-psk')
        mock.AddActiveConnection([wifi], con, corp, 'Mock_Active1', 2)
        mock.AddWiFiConnection(wifi, 'Mock_Con2', 'Guest', '')

    # The settings connection the 802.1X screen edits: a wired profile with an 802.1X section.
    # Update replaces the whole map, as NetworkManager does; secrets only come out of GetSecrets.
    secret_keys = repr(SECRET_KEYS)
    log = "self.nx_calls = getattr(self, 'nx_calls', []) + [%s]; "
    dbus_mock.AddObject(DOT1X_PATH, CONNECTION_IFACE, {'Unsaved': False}, [
        ('GetSettings', '', 'a{sa{sv}}', log % "'GetSettings'" +
         'ret = {n: {k: v for k, v in s.items() if k not in ' + secret_keys + '} for n, s in self.nx.items()}'),
        ('GetSecrets', 's', 'a{sa{sv}}', log % "'GetSecrets ' + args[0]" +
         'ret = {args[0]: {k: v for k, v in self.nx.get(args[0], {}).items() if k in ' + secret_keys + '}}'),
        ('Update', 'a{sa{sv}}', '', log % "'Update'" + 'self.nx = args[0]'),
        ('Save', '', '', log % "'Save'"),
    ])
    connection = bus.get_object('org.freedesktop.NetworkManager', DOT1X_PATH)
    control = dbus.Interface(connection, dbusmock.MOCK_IFACE)
    control.AddMethod(dbusmock.MOCK_IFACE, 'NxDump', '', 'a{sa{sv}}', 'ret = self.nx')
    control.AddMethod(dbusmock.MOCK_IFACE, 'NxCalls', '', 'as', "ret = getattr(self, 'nx_calls', [])")
    control.AddMethod(dbusmock.MOCK_IFACE, 'NxReset', '', '', 'self.nx_calls = []')
    dbus.Interface(connection, CONNECTION_IFACE).Update({
        'connection': {'id': 'Wired connection 1', 'type': '802-3-ethernet', 'interface-name': 'enp1s0',
                       'uuid': '8f3e5c2a-0000-4000-8000-000000000001'},
        'ipv4': {'method': 'auto',
                 'addresses': dbus.Array([dbus.Array([dbus.UInt32(16820416), dbus.UInt32(24), dbus.UInt32(0)],
                                                     signature='u')], signature='au')},
        '802-1x': {'eap': dbus.Array(['peap'], signature='s'), 'identity': 'alice', 'anonymous-identity': 'anon',
                   'phase2-auth': 'mschapv2', 'ca-cert': dbus.ByteArray(b'file:///media/NORBIX-USB/ca.pem\x00'),
                   'password': 'p@ss word'},
    }, signature='a{sa{sv}}')
    control.NxReset()

    if no_profiles:
        # Nothing to edit: the shell must create its profiles first.
        dbus_mock.RemoveObject(DOT1X_PATH)
    else:
        # Listed like any profile and active on the wired device, as on a terminal.
        manager_settings = dbus.Interface(bus.get_object('org.freedesktop.NetworkManager', SETTINGS_OBJ),
                                          'org.freedesktop.DBus.Properties')
        listed = list(manager_settings.Get(SETTINGS_IFACE, 'Connections')) + [dbus.ObjectPath(DOT1X_PATH)]
        mock.SetProperty(SETTINGS_OBJ, SETTINGS_IFACE, 'Connections', dbus.Array(listed, signature='o'))
        control.AddMethod(dbusmock.MOCK_IFACE, 'NxExpose', '', '', 'self.settings = self.nx')
        control.NxExpose()
        mock.AddActiveConnection([wired], DOT1X_PATH, '/', 'Mock_Active2', 2)
        control.NxReset()

    print('BUS ' + os.environ['DBUS_SYSTEM_BUS_ADDRESS'], flush=True)

    for line in sys.stdin:
        command = line.strip()
        if command == 'dump':
            state = control.NxDump()
            print('DUMP ' + json.dumps({'settings': plain(state), 'signatures': signatures(state)}), flush=True)
        elif command == 'calls':
            print('CALLS ' + json.dumps(plain(control.NxCalls())), flush=True)
        elif command == 'reset':
            control.NxReset()
            print('RESET', flush=True)
        elif command == 'refuse':
            control.AddMethod(CONNECTION_IFACE, 'GetSettings', '', 'a{sa{sv}}',
                              "raise dbus.exceptions.DBusException('Not authorized', "
                              "name='org.freedesktop.NetworkManager.PermissionDenied')")
            print('REFUSING', flush=True)
        elif command == 'remove':
            dbus_mock.RemoveObject(DOT1X_PATH)
            print('REMOVED', flush=True)
        elif command == 'quit':
            break
    server.terminate()
    server.wait()
    dbusmock.DBusTestCase.stop_dbus(dbusmock.DBusTestCase.system_bus_pid)


if __name__ == '__main__':
    main()

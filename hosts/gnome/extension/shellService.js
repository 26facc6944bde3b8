// SPDX-License-Identifier: MIT

import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Shell from 'gi://Shell';

const NAME = 'org.skyvane.Shell';
const PATH = '/org/skyvane/Shell';
const COMPANION = 'org.skyvane.Companion.desktop';

function interfaceIn(folder) {
    const [, bytes] = folder.get_child(`${NAME}.xml`).load_contents(null);
    return new TextDecoder().decode(bytes);
}

/// The shell as the host reaches it on the message bus. Only the host that runs as the shell's client may ask for more than
/// the start of one.
export class ShellService {
    constructor(folder, host, windows) {
        this._host = host;
        this._windows = windows;
        this._object = Gio.DBusExportedObject.wrapJSObject(interfaceIn(folder), this);
        this._object.export(Gio.DBus.session, PATH);
        this._name = Gio.DBus.session.own_name(NAME, Gio.BusNameOwnerFlags.NONE, null, null);
        windows.onAreasChanged(() => this._object.emit_signal('AreasChanged', null));
    }

    destroy() {
        this._windows.onAreasChanged(() => {});
        Gio.DBus.session.unown_name(this._name);
        this._object.unexport();
    }

    Start() {
        this._host.start();
    }

    AreaAsync([screen], invocation) {
        const area = this._windows.area(screen);
        if (area)
            this._answer(invocation, '(iiii)', area);
        else
            invocation.return_dbus_error(`${NAME}.NoScreen`, `no screen ${screen}`);
    }

    FocusAsync([title, time], invocation) {
        if (this._isRefused(invocation))
            return;
        this._windows.focus(title, time);
        this._answer(invocation, '()', []);
    }

    ActivationTokenAsync([time], invocation) {
        if (this._isRefused(invocation))
            return;
        const context = global.create_app_launch_context(time, -1);
        const companion = Shell.AppSystem.get_default().lookup_app(COMPANION);
        this._answer(invocation, '(s)', [context.get_startup_notify_id(companion?.app_info ?? null, []) ?? '']);
    }

    _isRefused(invocation) {
        if (this._host.isHost(invocation.get_sender()))
            return false;
        invocation.return_dbus_error(`${NAME}.Refused`, 'only the widgets that the shell has started may ask');
        return true;
    }

    _answer(invocation, type, values) {
        invocation.return_value(values.length > 0 ? new GLib.Variant(type, values) : null);
    }
}

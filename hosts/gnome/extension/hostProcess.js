// SPDX-License-Identifier: MIT

import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Meta from 'gi://Meta';

import {BackOff} from './backOff.js';

const PROGRAM = 'skyvane-host';
const NAME = 'org.skyvane.Host';
const PATH = '/org/skyvane/Host';
const SIGTERM = 15;

/// Starts a program as a client of the compositor's. The client, which knows its windows, and the process.
function startClient(command) {
    const launcher = Gio.SubprocessLauncher.new(Gio.SubprocessFlags.NONE);
    launcher.unsetenv('DESKTOP_AUTOSTART_ID'); // The shell's own.
    if (Meta.WaylandClient.new_subprocess) { // GNOME 49.
        const client = Meta.WaylandClient.new_subprocess(global.context, launcher, command);
        return [client, client.get_subprocess()];
    }
    const client = Meta.WaylandClient.new(global.context, launcher);
    return [client, client.spawnv(global.display, command)];
}

/// The widget host: runs from log-in to log-out unless the user has turned it off, and again after a crash.
export class HostProcess {
    /// `started` is called with the compositor's client of each process.
    constructor(started) {
        this._started = started;
        this._cancellable = new Gio.Cancellable();
        this._backOff = new BackOff();
        this._isWanted = false;
        this._owner = null; // Of the host's name on the message bus.
        this._readWish();
    }

    destroy() {
        this._isWanted = false;
        this._cancellable.cancel();
        if (this._watch)
            Gio.bus_unwatch_name(this._watch);
        if (this._timer)
            GLib.source_remove(this._timer);
        this._process?.send_signal(SIGTERM);
        this._watch = this._timer = 0;
        this._process = this._started = null;
    }

    /// Starts it where it does not run, for this session: the user asks for it.
    start() {
        this._isWanted = true;
        this._backOff.reset();
        this._run();
    }

    /// Whether this peer on the message bus is the host that was started here.
    isHost(peer) {
        return this._process != null && peer === this._owner;
    }

    /// The companion writes this entry to keep the widgets from coming up with each session.
    _readWish() {
        const file = Gio.File.new_build_filenamev([GLib.get_user_config_dir(), 'autostart', 'skyvane-host.desktop']);
        file.load_contents_async(this._cancellable, (_file, result) => {
            try {
                const [, bytes] = file.load_contents_finish(result);
                this._isWanted = !/^Hidden\s*=\s*true\s*$/m.test(new TextDecoder().decode(bytes));
            } catch (error) {
                if (error.matches(Gio.IOErrorEnum, Gio.IOErrorEnum.CANCELLED))
                    return;
                this._isWanted = true;
            }
            this._watchName();
        });
    }

    _watchName() {
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, NAME, Gio.BusNameWatcherFlags.NONE,
            (_bus, _name, owner) => {
                this._owner = owner;
                if (!this._process)
                    this._replaceOther();
            },
            () => {
                this._owner = null;
                if (this._isWanted && !this._timer)
                    this._run();
            });
    }

    /// One that somebody else has started cannot be placed from here. Its end is the start of one that can.
    _replaceOther() {
        this._isWanted = true;
        Gio.DBus.session.call(NAME, PATH, NAME, 'Quit', null, null, Gio.DBusCallFlags.NO_AUTO_START, -1,
            this._cancellable, null);
    }

    _run() {
        if (this._process || this._owner)
            return;
        const program = GLib.find_program_in_path(PROGRAM);
        if (!program) {
            console.warn(`Skyvane: there is no program ${PROGRAM}`);
            return;
        }
        if (this._timer)
            GLib.source_remove(this._timer);
        this._timer = 0;
        const begin = GLib.get_monotonic_time();
        try {
            const [client, process] = startClient([program, '--in-shell']);
            this._process = process;
            this._started(client);
            process.wait_check_async(this._cancellable, (_process, result) => this._ended(process, result, begin));
        } catch (error) {
            this._failed(error, begin);
        }
    }

    _ended(process, result, begin) {
        if (this._cancellable.is_cancelled())
            return;
        this._process = null;
        try {
            process.wait_check_finish(result);
            this._isWanted = false; // The user has ended it.
        } catch (error) {
            this._failed(error, begin);
        }
    }

    _failed(error, begin) {
        const run = (GLib.get_monotonic_time() - begin) / 1000;
        const wait = this._backOff.next(run);
        console.warn(`Skyvane: the widgets ended: ${error.message}${wait === null ? '; they are not started again' : ''}`);
        if (wait === null)
            return;
        this._timer = GLib.timeout_add(GLib.PRIORITY_DEFAULT, wait, () => {
            this._timer = 0;
            this._run();
            return GLib.SOURCE_REMOVE;
        });
    }
}

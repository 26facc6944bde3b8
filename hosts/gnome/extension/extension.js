// SPDX-License-Identifier: MIT

import Meta from 'gi://Meta';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';

import {HostProcess} from './hostProcess.js';
import {ShellService} from './shellService.js';
import {WidgetWindows} from './widgetWindows.js';

/// Runs Skyvane's widget host as a client of the shell, and keeps its windows where they belong. Draws nothing.
export default class SkyvaneExtension extends Extension {
    enable() {
        // On X11 the host itself tells the window manager all of it.
        if (!(Meta.is_wayland_compositor?.() ?? true))
            return;
        // Before that there is no top bar that widgets would have to leave room for.
        if (Main.layoutManager._startingUp)
            Main.layoutManager.connectObject('startup-complete', () => this._start(), this);
        else
            this._start();
    }

    _start() {
        this._windows = new WidgetWindows();
        this._host = new HostProcess(client => this._windows.follow(client));
        this._service = new ShellService(this.dir, this._host, this._windows);
    }

    disable() {
        Main.layoutManager.disconnectObject(this);
        this._service?.destroy();
        this._host?.destroy();
        this._windows?.destroy();
        this._service = null;
        this._host = null;
        this._windows = null;
    }
}

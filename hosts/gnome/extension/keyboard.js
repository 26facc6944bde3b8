// SPDX-License-Identifier: MIT

import GLib from 'gi://GLib';

/// Keeps the keyboard where the user types: the compositor gives it to every window that is clicked, a widget among them.
export class Keyboard {
    /// `isWidget` says it of a window.
    constructor(isWidget) {
        this._isWidget = isWidget;
        this._typedIn = null; // The last window but widgets that had it.
        this._wanted = null; // The widget that was given it on purpose.
        global.display.connectObject('notify::focus-window', () => this._moved(), this);
        global.workspace_manager.connectObject('showing-desktop-changed', () => this._moved(), this);
        this._moved();
    }

    destroy() {
        global.display.disconnectObject(this);
        global.workspace_manager.disconnectObject(this);
        if (this._idle)
            GLib.source_remove(this._idle);
        this._idle = 0;
        this._typedIn = this._wanted = this._isWidget = null;
    }

    /// Gives it to a widget, on purpose.
    give(window, time) {
        this._wanted = window;
        window.focus(time || global.display.get_current_time_roundtrip());
    }

    _moved() {
        const window = global.display.focus_window;
        if (window && this._isWidget(window)) {
            if (window !== this._wanted && !this._idle)
                this._idle = GLib.idle_add(GLib.PRIORITY_DEFAULT_IDLE, () => this._giveBack());
            return;
        }
        this._typedIn = window;
        this._wanted = null;
    }

    /// Not to a window that is gone, or hidden while the desktop is shown.
    _giveBack() {
        this._idle = 0;
        const isThere = this._typedIn?.get_compositor_private() && this._typedIn.showing_on_its_workspace();
        if (isThere)
            this._typedIn.focus(global.display.get_current_time_roundtrip());
        return GLib.SOURCE_REMOVE;
    }
}

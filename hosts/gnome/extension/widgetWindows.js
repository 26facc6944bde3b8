// SPDX-License-Identifier: MIT

import Meta from 'gi://Meta';
import St from 'gi://St';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';

import {Keyboard} from './keyboard.js';
import {onScreen, onStage, placeOf} from './place.js';

/// The stage counts in points where monitors may have fractions as their scale, else in pixels.
function screenAt(connector) {
    const index = global.backend.get_monitor_manager().get_monitor_for_connector(connector);
    const monitor = Main.layoutManager.monitors[index];
    if (!monitor)
        return null;
    const isInPixels = St.ThemeContext.get_for_stage(global.stage).scale_factor > 1;
    return {index, x: monitor.x, y: monitor.y, unitsPerPoint: isInPixels ? monitor.geometry_scale : 1};
}

/// The windows of the widget host that say in their title where they belong: kept there, below all others.
export class WidgetWindows {
    constructor() {
        this._client = null;
        this._windows = new Set();
        this._areasChanged = () => {};
        this._keyboard = new Keyboard(window => this._windows.has(window));
        global.display.connectObject(
            'window-created', (_display, window) => this._await(window),
            'workareas-changed', () => this._areasChanged(),
            this);
        Main.layoutManager.connectObject('monitors-changed', () => this._placeAll(), this);
    }

    destroy() {
        global.display.disconnectObject(this);
        Main.layoutManager.disconnectObject(this);
        this._keyboard.destroy();
        this._windows.forEach(window => window.disconnectObject(this));
        this._windows.clear();
        this._client = null;
    }

    /// Keeps the windows of this client of the compositor's, in place of those of an earlier one.
    follow(client) {
        this._client = client;
    }

    /// Calls back whenever the room that panels leave has changed.
    onAreasChanged(callback) {
        this._areasChanged = callback;
    }

    /// The room that panels leave of a screen, in its own points; null where there is no such screen.
    area(connector) {
        const screen = screenAt(connector);
        return screen && onScreen(Main.layoutManager.getWorkAreaForMonitor(screen.index), screen);
    }

    /// Gives the keyboard to the window of this title.
    focus(title, time) {
        const found = [...this._windows].find(window => window.title === title);
        if (found)
            this._keyboard.give(found, time);
    }

    /// A window has no title yet when it is made.
    _await(window) {
        if (!this._client?.owns_window(window))
            return;
        window.connectObject(
            'notify::title', () => this._place(window),
            'shown', () => this._place(window),
            'unmanaged', () => this._windows.delete(window),
            this);
        this._place(window);
    }

    _place(window) {
        const place = placeOf(window.title);
        if (!place)
            return;
        if (!this._windows.has(window))
            this._adopt(window);
        const screen = screenAt(place.connector);
        if (screen)
            window.move_frame(false, ...onStage(place, screen));
    }

    /// A part of the desktop: below all windows, on every workspace, still there when the desktop is shown, in no list.
    _adopt(window) {
        this._windows.add(window);
        if (window.set_type) { // GNOME 49.
            window.set_type(Meta.WindowType.DESKTOP);
            window.hide_from_window_list();
        } else {
            this._client.make_desktop(window);
            this._client.hide_from_window_list(window);
        }
        window.stick();
    }

    _placeAll() {
        this._windows.forEach(window => this._place(window));
        this._areasChanged();
    }
}

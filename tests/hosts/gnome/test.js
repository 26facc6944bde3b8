// test.js FOLDER: the extension's own logic, and what its catalogue asks of it, as far as it can be told without a shell.

import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import System from 'system';

const FOLDER = Gio.File.new_for_path(System.programArgs[0]);
const {BackOff} = await import(FOLDER.get_child('backOff.js').get_uri());
const {onScreen, onStage, placeOf} = await import(FOLDER.get_child('place.js').get_uri());

let failures = 0;

function expectEqual(what, found, wanted) {
    const [one, other] = [found, wanted].map(value => JSON.stringify(value));
    if (one === other)
        return;
    printerr(`${what}: ${one}, not ${other}`);
    ++failures;
}

function textOf(name) {
    return new TextDecoder().decode(FOLDER.get_child(name).load_contents(null)[1]);
}

function modules() {
    const names = [];
    for (const info of FOLDER.enumerate_children('standard::name', Gio.FileQueryInfoFlags.NONE, null))
        names.push(info.get_name());
    return names.filter(name => name.endsWith('.js'));
}

const tests = {
    theWaitDoublesFromASecondToFiveMinutesThenItIsLeftAlone() {
        const backOff = new BackOff();
        const waits = Array.from({length: 11}, () => backOff.next(10));
        expectEqual('waits', waits, [1, 2, 4, 8, 16, 32, 64, 128, 256, 300, null].map(wait => wait && wait * 1000));
    },

    afterASoundRunTheNextFailureIsTheFirst() {
        const backOff = new BackOff();
        backOff.next(10);
        backOff.next(10);
        expectEqual('a minute', backOff.next(60_000), 1000);
        expectEqual('less than a minute', backOff.next(59_999), 2000);
    },

    whoeverAsksForTheWidgetsEndsTheBackOff() {
        const backOff = new BackOff();
        for (let failure = 0; failure < 20; ++failure)
            backOff.next(10);
        backOff.reset();
        expectEqual('wait', backOff.next(10), 1000);
    },

    aTitleSaysScreenAndPlace() {
        expectEqual('place', placeOf('skyvane:DP-1:1212,24'), {connector: 'DP-1', x: 1212, y: 24});
        expectEqual('above and left', placeOf('skyvane:Meta-0:-8,-16'), {connector: 'Meta-0', x: -8, y: -16});
    },

    anyOtherTitleSaysNone() {
        for (const title of [null, '', 'Add Widgets', 'skyvane:DP-1:1,', 'skyvane::1,2', 'my skyvane:DP-1:1,2', 'skyvane:DP-1:1,2 '])
            expectEqual(`place in ${title}`, placeOf(title), null);
    },

    aStageCountsInPointsOrInPixels() {
        const place = {connector: 'DP-1', x: 10, y: 20};
        expectEqual('in points', onStage(place, {x: 1600, y: 0, unitsPerPoint: 1}), [1610, 20]);
        expectEqual('in pixels', onStage(place, {x: 1600, y: 100, unitsPerPoint: 2}), [1620, 140]);
    },

    theRoomThatPanelsLeaveIsToldInPointsFromTheScreensCorner() {
        const monitor = {x: 1600, y: 100, unitsPerPoint: 2};
        expectEqual('area', onScreen({x: 1600, y: 164, width: 3200, height: 1736}, monitor), [0, 32, 1600, 868]);
    },

    async everyModuleCanBeRead() {
        for (const name of modules()) {
            // Those that need the shell are not found a line later.
            const error = await import(FOLDER.get_child(name).get_uri()).then(() => null, failure => failure);
            expectEqual(name, error instanceof SyntaxError ? error.message : null, null);
        }
    },

    nothingIsDoneWhileModulesAreImported() {
        for (const name of modules()) {
            const outside = textOf(name).split('\n').filter(line => /^\S/.test(line));
            const busy = outside.filter(line => !/^(import |export |const [A-Z_]+ = ['\d]|function |async function |\/\/|})/.test(line));
            expectEqual(name, busy, []);
        }
    },

    theMetadataNamesTheShellsThatItIsTriedWith() {
        const metadata = JSON.parse(textOf('metadata.json'));
        expectEqual('uuid', metadata.uuid, 'skyvane@skyvane.org');
        expectEqual('shells', metadata['shell-version'], ['48', '49']);
        expectEqual('keys', Object.keys(metadata), ['uuid', 'name', 'description', 'shell-version', 'url']);
    },
};

for (const [name, test] of Object.entries(tests)) {
    const before = failures;
    await test();
    print(`${failures === before ? 'ok' : 'FAILED'} ${name}`);
}
System.exit(failures > 0 ? 1 : 0);

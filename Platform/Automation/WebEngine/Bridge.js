// The client's end of the bridge. It runs in the main frame of every page, in a script world of its own,
// so that the page's scripts can reach neither this code nor the channel to the client: all that they have
// is the port through which Page.js hands over a call.
(function () {
    'use strict';

    // The engine's own pages, for an address that cannot be loaded, call nobody.
    if (location.protocol === 'about:' || location.protocol === 'chrome-error:')
        return;

    const invokeMethod = 6; // a message type of the web channel

    // A page that calls faster than the client can follow is told so, instead of filling the memory.
    const mostWaiting = 4096; // calls
    const mostWaitingCharacters = 16 * 1024 * 1024;
    const mostUnanswered = 8; // calls that the client has not taken yet
    const longestName = 1024; // characters
    const longestParam = 4 * 1024 * 1024;

    const transport = qt.webChannelTransport;
    let nextId = 0;
    let waiting = [];
    let waitingCharacters = 0;
    let unanswered = 0;
    let reportsItself = false;

    function invoke(method, args) {
        transport.send(JSON.stringify(
            {type: invokeMethod, id: nextId++, object: 'bridge', method: method, args: args}));
    }

    function sendWaiting() {
        while (waiting.length > 0 && unanswered < mostUnanswered) {
            const call = waiting.shift();
            waitingCharacters -= call[0].length + call[1].length;
            ++unanswered;
            invoke('Call', call);
        }
    }

    function enqueue(name, param) {
        waiting.push([name, param]);
        waitingCharacters += name.length + param.length;
        sendWaiting();
    }

    function isReport(name) {
        return name === 'initComplete' || name === 'initMComplete';
    }

    function takes(name, param) {
        return typeof name === 'string' && typeof param === 'string'
            && name.length <= longestName && param.length <= longestParam
            && waiting.length < mostWaiting
            && waitingCharacters + name.length + param.length <= mostWaitingCharacters;
    }

    // Both scripts run before any of the page, in an order that the engine does not promise: Page.js says
    // hello when it starts, or else when it is asked. The port is an element outside the document, so
    // nothing that the page does to its document reaches it.
    window.addEventListener('linkWebHello', function (hello) {
        hello.preventDefault();
        hello.stopImmediatePropagation();
        hello.relatedTarget.addEventListener('call', function (event) {
            const [name, param] = event.detail;
            if (!takes(name, param)) {
                event.preventDefault();
                return;
            }
            reportsItself = reportsItself || isReport(name);
            enqueue(name, param);
        });
    }, {once: true, capture: true});
    window.dispatchEvent(new Event('linkWebAsk'));

    transport.onmessage = () => { }; // the client answers each message
    invoke('Begin', []);

    // For the client, which runs scripts in this world too.
    window.linkWebClient = {
        // The client has passed on so many calls; after a navigation, also some of the page before.
        taken: function (count) {
            unanswered = Math.max(0, unanswered - count);
            sendWaiting();
        },
        // The page is complete; one that does not say so itself is reported for it.
        loaded: function () {
            if (!reportsItself)
                enqueue('initComplete', '');
        },
    };
})();

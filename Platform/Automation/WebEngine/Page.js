// The page's end of the bridge: runs before any script of the page, in the main frame.
(function () {
    'use strict';

    const port = document.createElement('div');
    const call = CustomEvent;
    const text = String;
    const dispatch = port.dispatchEvent.bind(port);

    function textOf(value) {
        return value === undefined || value === null ? '' : text(value);
    }

    // Gives 0, or -1 when the call is too long or the client cannot follow any more.
    function CallBack(name, param) {
        const event = new call('call', {cancelable: true, detail: [textOf(name), textOf(param)]});
        return dispatch(event) ? 0 : -1;
    }

    function define(object, name, value) {
        Object.defineProperty(object, name, {value, configurable: true, enumerable: true, writable: true});
    }

    if (!window.external)
        define(window, 'external', {});
    define(window.external, 'CallBack', CallBack);
    define(window, 'linkWeb', {CallBack});

    // Hands the port to Bridge.js; false when that has not started yet.
    function hello() {
        return !window.dispatchEvent(new MouseEvent('linkWebHello', {cancelable: true, relatedTarget: port}));
    }

    if (!hello())
        window.addEventListener('linkWebAsk', hello, {once: true, capture: true});
})();

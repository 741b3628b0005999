// Draws the dashboard from what the program's object "dashboard" tells. Written for the web engine of the program:
// ECMAScript 5, no network. Text of the database goes into text nodes only, never into markup.
(function () {
  'use strict';

  var bridge = window.dashboard;
  var format = JSON.parse(bridge.getLocalization());
  // The bridge names days in English, whatever the program speaks.
  var keyMonths = ['Jan', 'Feb', 'Mar', 'Apr', 'May', 'Jun', 'Jul', 'Aug', 'Sep', 'Oct', 'Nov', 'Dec'];
  var monthNames = [qsTr('January'), qsTr('February'), qsTr('March'), qsTr('April'), qsTr('May'), qsTr('June'),
    qsTr('July'), qsTr('August'), qsTr('September'), qsTr('October'), qsTr('November'), qsTr('December')];
  var dayNames = [qsTr('Sunday'), qsTr('Monday'), qsTr('Tuesday'), qsTr('Wednesday'), qsTr('Thursday'), qsTr('Friday'),
    qsTr('Saturday')];
  // What stands in the page itself.
  var words = [
    QT_TR_NOOP('Dashboard'), QT_TR_NOOP('Welcome'), QT_TR_NOOP('Read the figures anew (F5)'), QT_TR_NOOP('Refresh'),
    QT_TR_NOOP('No sales yet'), QT_TR_NOOP('Begin with the company profile'), QT_TR_NOOP('Figures'),
    QT_TR_NOOP('Today'), QT_TR_NOOP('Average sale'), QT_TR_NOOP('Best day'), QT_TR_NOOP('Sales by day'),
    QT_TR_NOOP('Amount'), QT_TR_NOOP('Number of sales'), QT_TR_NOOP('Day'), QT_TR_NOOP('Best sellers'),
    QT_TR_NOOP('by quantity'), QT_TR_NOOP('Item'), QT_TR_NOOP('Sold'),
    QT_TR_NOOP('Nothing was sold by the piece.'), QT_TR_NOOP('Set up the restaurant'),
    QT_TR_NOOP('Company profile'), QT_TR_NOOP('Name, address and logo'),
    QT_TR_NOOP('Cashier printer'), QT_TR_NOOP('For the guests’ bills'),
    QT_TR_NOOP('Kitchen printers'), QT_TR_NOOP('For what is to be cooked'),
    QT_TR_NOOP('Item types'), QT_TR_NOOP('Food, drinks, desserts'),
    QT_TR_NOOP('Units'), QT_TR_NOOP('Portion, glass, kilogram'),
    QT_TR_NOOP('Tables'), QT_TR_NOOP('Where your guests sit'),
    QT_TR_NOOP('Items'), QT_TR_NOOP('Dishes with their prices'),
    QT_TR_NOOP('Beginning balances'), QT_TR_NOOP('What lies on the shelf'),
    QT_TR_NOOP('Cash'), QT_TR_NOOP('What lies in the drawer'), QT_TR_NOOP('Every day'),
    QT_TR_NOOP('Dine in'), QT_TR_NOOP('Tables, orders and bills'),
    QT_TR_NOOP('Fast food'), QT_TR_NOOP('Sell over the counter')
  ];
  var topItems = 10;
  var chart = null;
  var reading = false;

  // --- words ------------------------------------------------------------------------------------------------------

  // The program's catalogues know the page's texts by these two names.
  function qsTr(text) { return bridge.translated(text); }
  function QT_TR_NOOP(text) { return text; }

  function filled(text, first, second) { return text.split('%1').join(first).split('%2').join(second); }

  function translateAttribute(element, name) {
    if (element.hasAttribute(name))
      element.setAttribute(name, translatedWord(element.getAttribute(name)));
  }

  function translatedWord(text) {
    if (words.indexOf(text) < 0)
      console.error('The catalogues do not know: ' + text);
    return qsTr(text);
  }

  /** The page stands in English. */
  function translatePage() {
    document.documentElement.lang = qsTr('en');
    var walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT, null, false);
    while (walker.nextNode()) {
      var node = walker.currentNode;
      var text = node.data.trim();
      if (text && node.parentNode.nodeName !== 'SCRIPT')
        node.data = node.data.replace(text, translatedWord(text));
    }
    Array.prototype.forEach.call(document.querySelectorAll('[title], [aria-label]'), function (element) {
      translateAttribute(element, 'title');
      translateAttribute(element, 'aria-label');
    });
  }

  function byId(id) { return document.getElementById(id); }
  function say(id, text) { byId(id).textContent = text; }

  // --- numbers and days -------------------------------------------------------------------------------------------

  function grouped(value) {
    return String(Math.abs(Math.round(value))).replace(/\B(?=(\d{3})+$)/g, format.group);
  }
  function plain(value) { return (value < 0 ? '-' : '') + grouped(value); }
  function money(value) { return (value < 0 ? '-' : '') + format.money.split('%1').join(grouped(value)); }
  function times(count) { return filled(count === 1 ? qsTr('%1 sale') : qsTr('%1 sales'), plain(count)); }

  function shortMonth(month) { return monthNames[month].substr(0, 3); }
  /** The bridge's name of a day, "05 Nov". */
  function keyOf(day) { return (day.getDate() < 10 ? '0' : '') + day.getDate() + ' ' + keyMonths[day.getMonth()]; }
  function shortDay(day) { return day.getDate() + ' ' + shortMonth(day.getMonth()); }
  function longDay(day) { return dayNames[day.getDay()] + ' ' + day.getDate() + ' ' + monthNames[day.getMonth()]; }

  /** From the bridge's limit, "05 Nov 2026". Noon, so that no change of the clocks moves it to another day. */
  function parseLimit(text) {
    var parts = text.split(' ');
    var month = 0;
    while (month < 11 && keyMonths[month] !== parts[1])
      month += 1;
    return new Date(Number(parts[2]), month, Number(parts[0]), 12);
  }

  /** Every day between the limits; the bridge leaves out the days without sales. */
  function everyDay(data) {
    var sold = {};
    data.dates.forEach(function (key, index) {
      sold[key] = {count: Number(data.nsales[index]), total: Number(data.totalsales[index])};
    });
    var days = [];
    var last = parseLimit(data.todate);
    for (var day = parseLimit(data.fromdate); day <= last; day = new Date(day.getFullYear(), day.getMonth(), day.getDate() + 1, 12)) {
      var found = sold[keyOf(day)] || {count: 0, total: 0};
      days.push({date: day, count: found.count, total: found.total});
    }
    return days;
  }

  // --- parts of the page ------------------------------------------------------------------------------------------

  function greet() {
    var hour = new Date().getHours();
    var part = hour >= 4 && hour < 12 ? qsTr('Good morning') : hour >= 12 && hour < 18 ? qsTr('Good afternoon') :
      qsTr('Good evening');
    var name = bridge.getUsername().trim();
    say('greeting', name ? part + ', ' + name : part);
  }

  function showFigures(days) {
    var sum = {count: 0, total: 0};
    var best = days[0];
    days.forEach(function (day) {
      sum.count += day.count;
      sum.total += day.total;
      if (day.total > best.total)
        best = day;
    });
    var today = days[days.length - 1];
    say('today-total', money(today.total));
    say('today-count', times(today.count));
    say('period-title', filled(qsTr('Last %1 days'), days.length));
    say('period-total', money(sum.total));
    say('period-count', times(sum.count));
    say('average', sum.count ? money(sum.total / sum.count) : '–');
    say('average-of', filled(qsTr('over %1 days'), days.length));
    say('best-total', money(best.total));
    say('best-day', longDay(best.date));
  }

  /** A large amount is written smaller rather than cut. */
  function fitFigures() {
    Array.prototype.forEach.call(document.querySelectorAll('.number'), function (number) {
      number.style.fontSize = '';
      var size = parseInt(window.getComputedStyle(number).fontSize, 10);
      while (number.scrollWidth > number.clientWidth && size > 10) {
        size -= 1;
        number.style.fontSize = size + 'px';
      }
    });
  }

  function cell(row, text, className) {
    var made = row.insertCell(-1);
    made.textContent = text;
    made.className = className || '';
    return made;
  }

  function showDays(days) {
    var body = byId('days').tBodies[0];
    body.textContent = '';
    days.forEach(function (day) {
      var row = body.insertRow(-1);
      cell(row, longDay(day.date));
      cell(row, plain(day.count));
      cell(row, money(day.total));
    });
  }

  function showItems(data) {
    var body = byId('items').tBodies[0];
    var most = Number(data.nsales[0]);
    body.textContent = '';
    data.items.slice(0, topItems).forEach(function (name, index) {
      var row = body.insertRow(-1);
      var label = document.createElement('div');
      label.className = 'label';
      label.textContent = name;
      var share = document.createElement('div');
      share.className = 'share';
      share.style.width = Math.max(2, 100 * Number(data.nsales[index]) / most) + '%';
      var first = cell(row, '');
      first.title = name;
      first.appendChild(label);
      first.appendChild(share);
      cell(row, plain(Number(data.nsales[index])), 'right');
      cell(row, money(Number(data.totalsales[index])), 'right');
    });
    byId('items').style.display = data.items.length ? '' : 'none';
    byId('no-items').style.display = data.items.length ? 'none' : '';
  }

  // --- the chart --------------------------------------------------------------------------------------------------

  function makeChart() {
    var style = window.getComputedStyle(document.body);
    Chart.defaults.global.defaultFontFamily = style.fontFamily;
    Chart.defaults.global.defaultFontColor = '#5f6b76';
    Chart.defaults.global.defaultFontSize = 13;
    return new Chart(byId('chart'), {
      type: 'bar',
      data: {
        labels: [],
        datasets: [{
          type: 'line', label: qsTr('Number of sales'), yAxisID: 'count', data: [], fill: false, lineTension: 0,
          borderColor: '#c26a00', borderWidth: 2.5, pointRadius: 3.5, pointHoverRadius: 5,
          pointBackgroundColor: '#ffffff', pointBorderColor: '#c26a00', pointBorderWidth: 2
        }, {
          label: qsTr('Amount'), yAxisID: 'money', data: [], backgroundColor: '#005782', hoverBackgroundColor: '#006a9f',
          barPercentage: 0.72, categoryPercentage: 0.92
        }]
      },
      options: {
        maintainAspectRatio: false,
        animation: {duration: 0},
        hover: {animationDuration: 0},
        responsiveAnimationDuration: 0,
        legend: {display: false},
        tooltips: {
          mode: 'index', intersect: false, backgroundColor: '#1f2933', cornerRadius: 4, xPadding: 12, yPadding: 10,
          displayColors: false,
          itemSort: function (left, right) { return right.datasetIndex - left.datasetIndex; },
          callbacks: {
            title: function (items) { return chart.days[items[0].index] ? longDay(chart.days[items[0].index].date) : ''; },
            label: function (item) { return item.datasetIndex === 1 ? money(item.yLabel) : times(item.yLabel); }
          }
        },
        scales: {
          xAxes: [{gridLines: {display: false}, ticks: {maxRotation: 0, autoSkipPadding: 14}}],
          yAxes: [{
            id: 'money', position: 'left', gridLines: {color: '#e6eaee', drawBorder: false, zeroLineColor: '#b8c0c8'},
            ticks: {beginAtZero: true, maxTicksLimit: 6, padding: 6, callback: function (value) { return plain(value); }}
          }, {
            id: 'count', position: 'right', gridLines: {drawOnChartArea: false, drawBorder: false},
            ticks: {beginAtZero: true, maxTicksLimit: 6, padding: 6, precision: 0, callback: function (value) { return plain(value); }}
          }]
        }
      }
    });
  }

  function drawChart(days) {
    chart = chart || makeChart();
    chart.days = days;
    chart.data.labels = days.map(function (day) { return shortDay(day.date); });
    chart.data.datasets[0].data = days.map(function (day) { return day.count; });
    chart.data.datasets[1].data = days.map(function (day) { return day.total; });
    chart.update();
  }

  // --- reading ----------------------------------------------------------------------------------------------------

  /** A printer that nobody has chosen yet is a step that is still open. */
  function showOpenSteps() {
    var steps = JSON.parse(bridge.getOpenSteps());
    Array.prototype.forEach.call(document.querySelectorAll('#setup [data-screen]'), function (tile) {
      var hint = tile.querySelector('.hint');
      if (!hint.hasAttribute('data-text'))
        hint.setAttribute('data-text', hint.textContent);
      var isOpen = steps.indexOf(tile.getAttribute('data-screen')) >= 0;
      hint.textContent = isOpen ? qsTr('Not chosen yet') : hint.getAttribute('data-text');
      hint.className = isOpen ? 'hint open' : 'hint';
    });
  }

  function refresh() {
    // An error box of the program stands in the middle of a read; whatever comes meanwhile finds it going on.
    if (reading)
      return;
    reading = true;
    greet();
    showOpenSteps();
    var sales = JSON.parse(bridge.getSalesChartData());
    var items = JSON.parse(bridge.getSoldItemsData());
    reading = false;

    var days = everyDay(sales);
    var nothing = sales.dates.length === 0 && items.items.length === 0;
    byId('page').className = nothing ? 'nothing' : '';
    say('today', longDay(days[days.length - 1].date));
    if (nothing) {
      say('empty-text', filled(qsTr('Nothing was sold between %1 and %2. As soon as the first invoice is saved, the ' +
        'figures appear here. Is the restaurant new? The steps below set it up, one after the other.'),
        shortDay(days[0].date), shortDay(days[days.length - 1].date)));
      return;
    }
    showFigures(days);
    fitFigures();
    showDays(days);
    showItems(items);
    drawChart(days);
  }

  function open(event) { bridge[event.currentTarget.getAttribute('data-screen')](); }

  Array.prototype.forEach.call(document.querySelectorAll('[data-screen]'), function (button) {
    button.addEventListener('click', open);
  });
  byId('refresh').addEventListener('click', refresh);
  document.addEventListener('keydown', function (event) {
    if (event.keyCode === 116) { // F5
      event.preventDefault();
      refresh();
    }
  });
  window.addEventListener('resize', fitFigures);
  bridge.shownAgain.connect(refresh);
  translatePage();
  refresh();
}());

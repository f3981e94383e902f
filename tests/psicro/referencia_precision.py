#!/usr/bin/env python3
"""Segunda escritura, en Python, de la saturación, el rocío y la temperatura húmeda, redondeando a 32 bits en los
mismos sitios que el modelo. Escribe los valores de Pruebaprecision.cpp, en hexadecimal para que no se pierda un bit.

    python3 referencia_precision.py
"""
import math
import struct


def simple(x):
    """El real de 32 bits más próximo."""
    return struct.unpack("f", struct.pack("f", x))[0]


AGUA = [simple(c) for c in (-5800.2206, 1.3914993, -0.048640239, 4.1764768e-5, -1.4452093e-8, 6.5459673)]
HIELO = [simple(c) for c in (-5674.5359, 6.3925247, -0.009677843, 6.2215701e-7, 2.0747825e-9, -9.484024e-13, 4.1635019)]
T0 = simple(273.15)
EPSILON, EPSILON_ROCIO = 0.6219779385109357, 0.6219779305666405


def presion_saturacion(t):
    k = simple(t + T0)
    if k >= T0:
        c = AGUA
        ln = c[0] / k + c[1] + c[2] * k + c[3] * k**2 + c[4] * k**3 + c[5] * math.log(k)
    else:
        c = HIELO
        ln = c[0] / k + c[1] + c[2] * k + c[3] * k**2 + c[4] * k**3 + c[5] * k**4 + c[6] * math.log(k)
    return simple(math.exp(ln))


def siguiente(e, x, f, k):
    """Un paso del buscador; e = [x0, x1, f0, f1]. Las parábolas de estas búsquedas nunca son casi rectas."""
    x0, x1, f0, f1 = e
    modo = min(k, 2)
    if modo == 2:
        if x == x0:
            x0, f0 = x1, f1
        elif x != x1:
            a = ((f1 - f) / (x1 - x) - (f0 - f) / (x0 - x)) / (x1 - x0)
            assert abs(a) > 1e-10
        modo = 1
    paso = None
    if modo == 1 and (f0 - f) / (x0 - x) != 0:
        paso = x - f / ((f0 - f) / (x0 - x))
    if paso is None:
        paso = 0.1 if abs(x) <= 0.01 else 1.1 * x
    e[:] = [x, x0, f, f0]
    return paso


def resolver(x, tolerancia, residuo):
    e = [0.0, 0.0, 0.0, 0.0]
    for k in range(50):
        x, f = residuo(x)
        if (abs(x - e[0]) < max(abs(x), 0.01) * tolerancia and k > 0) or f == 0:
            return x
        x = simple(siguiente(e, x, f, k))
    raise ArithmeticError("no converge")


def t_saturacion(p):
    return resolver(100.0, 1e-5, lambda x: (x, simple(p - presion_saturacion(x))))


def t_humeda(t, w):
    ebullicion = t_saturacion(101325.0)

    def residuo(x):
        if ebullicion - 0.09 <= x:
            x = simple(ebullicion - 0.1)
        ps = presion_saturacion(x)
        ws = EPSILON * ps / (101325.0 - ps)
        wx = ((2501000 - 2381 * x) * ws - (t - x) * 1006) / (1805 * t + 2501000 - 4186 * x)
        return x, simple(w - wx)

    return resolver(max(simple(min(ebullicion - 0.1, t)), 0.0), simple(0.001), residuo)


def humedad(t, hr):
    pv = 0.01 * hr * presion_saturacion(t)
    return simple(EPSILON * pv / (101325.0 - pv))


def rocio(w):
    return t_saturacion(simple(101325.0 * w / (EPSILON_ROCIO + w)))


for t in (25.0, -10.0, 0.0, 60.0):
    print("presion_saturacion", t, presion_saturacion(t).hex())
for p in (101325.0, 700.0, 1234.5, 2338.0):
    print("t_saturacion", p, t_saturacion(p).hex())
for t, hr in ((11.0, 10), (11.0, 90), (12.0, 30)):
    print("w", t, hr, humedad(t, hr).hex())
for t, hr in ((11.0, 90), (21.0, 30), (23.0, 90)):
    print("tr", t, hr, rocio(humedad(t, hr)).hex())
for t, hr in ((31.0, 42), (25.0, 50), (-5.0, 77)):
    print("th", t, hr, t_humeda(t, humedad(t, hr)).hex())

// Parameter lists of the C interface, written once and pasted where a tier needs them.
//
// PARAM_<kind>_<access>(T, Name, name) is the C parameters of one group, and GROUP_<kind>_<access>
// the group that these parameters stand for. Kinds are the letters of a shape. Access is the layout
// S, P or L as an entry function takes it, or C and LC, the standard and list layouts of contiguous
// rows as their cores take them, without the element strides. In list layout a single operand is
// passed as in the standard layout.
#pragma once

#include "frame/operands.h"

#define QORM_TYPE_32f float
#define QORM_TYPE_64f double

#define PARAM_m_S(T, Name, name) T *p##Name, std::int32_t name##Stride1, std::int32_t name##Stride2
#define PARAM_m_C(T, Name, name) T *p##Name, std::int32_t name##Stride1
#define PARAM_m_P(T, Name, name) T *const *pp##Name, std::int32_t name##Shift
#define PARAM_m_L(T, Name, name) PARAM_m_S(T, Name, name)
#define PARAM_m_LC(T, Name, name) PARAM_m_C(T, Name, name)

#define PARAM_ma_S(T, Name, name) \
    T *p##Name, std::int32_t name##Stride0, std::int32_t name##Stride1, std::int32_t name##Stride2
#define PARAM_ma_C(T, Name, name) T *p##Name, std::int32_t name##Stride0, std::int32_t name##Stride1
#define PARAM_ma_P(T, Name, name) \
    T *const *pp##Name, std::int32_t name##Shift, std::int32_t name##Stride0
#define PARAM_ma_L(T, Name, name) \
    T *const *pp##Name, std::int32_t name##Shift, std::int32_t name##Stride1, \
        std::int32_t name##Stride2
#define PARAM_ma_LC(T, Name, name) \
    T *const *pp##Name, std::int32_t name##Shift, std::int32_t name##Stride1

#define GROUP_m_S(T, Name, name) \
    qorm::Strided<T, qorm::Kind::m, false>(p##Name, 0, name##Stride1, name##Stride2)
#define GROUP_m_C(T, Name, name) \
    qorm::Strided<T, qorm::Kind::m, true>(p##Name, 0, name##Stride1, sizeof(T))
#define GROUP_m_P(T, Name, name) qorm::Pointers<T, false>(pp##Name, name##Shift, 0)
#define GROUP_m_L(T, Name, name) GROUP_m_S(T, Name, name)
#define GROUP_m_LC(T, Name, name) GROUP_m_C(T, Name, name)

#define GROUP_ma_S(T, Name, name) \
    qorm::Strided<T, qorm::Kind::ma, false>(p##Name, name##Stride0, name##Stride1, name##Stride2)
#define GROUP_ma_C(T, Name, name) \
    qorm::Strided<T, qorm::Kind::ma, true>(p##Name, name##Stride0, name##Stride1, sizeof(T))
#define GROUP_ma_P(T, Name, name) qorm::Pointers<T, true>(pp##Name, name##Shift, name##Stride0)
#define GROUP_ma_L(T, Name, name) \
    qorm::List<T, qorm::Kind::ma, false>(pp##Name, name##Shift, name##Stride1, name##Stride2)
#define GROUP_ma_LC(T, Name, name) \
    qorm::List<T, qorm::Kind::ma, true>(pp##Name, name##Shift, name##Stride1, sizeof(T))

// Vectors are passed as matrices are, without a stride of rows.
#define PARAM_v_S(T, Name, name) T *p##Name, std::int32_t name##Stride2
#define PARAM_v_C(T, Name, name) T* p##Name
#define PARAM_v_P PARAM_m_P
#define PARAM_v_L PARAM_v_S
#define PARAM_v_LC PARAM_v_C
#define PARAM_va_S(T, Name, name) T *p##Name, std::int32_t name##Stride0, std::int32_t name##Stride2
#define PARAM_va_C(T, Name, name) T *p##Name, std::int32_t name##Stride0
#define PARAM_va_P PARAM_ma_P
#define PARAM_va_L(T, Name, name) \
    T *const *pp##Name, std::int32_t name##Shift, std::int32_t name##Stride2
#define PARAM_va_LC(T, Name, name) T *const *pp##Name, std::int32_t name##Shift
#define GROUP_v_S(T, Name, name) \
    qorm::Strided<T, qorm::Kind::v, false>(p##Name, 0, 0, name##Stride2)
#define GROUP_v_C(T, Name, name) qorm::Strided<T, qorm::Kind::v, true>(p##Name, 0, 0, sizeof(T))
#define GROUP_v_P GROUP_m_P
#define GROUP_v_L GROUP_v_S
#define GROUP_v_LC GROUP_v_C
#define GROUP_va_S(T, Name, name) \
    qorm::Strided<T, qorm::Kind::va, false>(p##Name, name##Stride0, 0, name##Stride2)
#define GROUP_va_C(T, Name, name) \
    qorm::Strided<T, qorm::Kind::va, true>(p##Name, name##Stride0, 0, sizeof(T))
#define GROUP_va_P GROUP_ma_P
#define GROUP_va_L(T, Name, name) \
    qorm::List<T, qorm::Kind::va, false>(pp##Name, name##Shift, 0, name##Stride2)
#define GROUP_va_LC(T, Name, name) \
    qorm::List<T, qorm::Kind::va, true>(pp##Name, name##Shift, 0, sizeof(T))

// An operand read transposed is passed like one read as stored.
#define PARAM_t_S PARAM_m_S
#define PARAM_t_C PARAM_m_C
#define PARAM_t_P PARAM_m_P
#define PARAM_t_L PARAM_m_L
#define PARAM_t_LC PARAM_m_LC
#define PARAM_ta_S PARAM_ma_S
#define PARAM_ta_C PARAM_ma_C
#define PARAM_ta_P PARAM_ma_P
#define PARAM_ta_L PARAM_ma_L
#define PARAM_ta_LC PARAM_ma_LC
#define GROUP_t_S GROUP_m_S
#define GROUP_t_C GROUP_m_C
#define GROUP_t_P GROUP_m_P
#define GROUP_t_L GROUP_m_L
#define GROUP_t_LC GROUP_m_LC
#define GROUP_ta_S GROUP_ma_S
#define GROUP_ta_C GROUP_ma_C
#define GROUP_ta_P GROUP_ma_P
#define GROUP_ta_L GROUP_ma_L
#define GROUP_ta_LC GROUP_ma_LC

// The sizes behind the operands; array forms, whose destination is `ma` or `va`, end with the count.
#define PARAM_width_height_m std::int32_t width, std::int32_t height
#define PARAM_width_height_ma PARAM_width_height_m, std::int32_t count
#define PARAM_widthHeight_m std::int32_t widthHeight
#define PARAM_widthHeight_ma PARAM_widthHeight_m, std::int32_t count
#define GROUP_width_height_m qorm::Size(width), qorm::Size(height)
#define GROUP_width_height_ma GROUP_width_height_m, qorm::Count(count)
#define GROUP_widthHeight_m qorm::Size(widthHeight)
#define GROUP_widthHeight_ma GROUP_widthHeight_m, qorm::Count(count)
#define PARAM_width_height_v PARAM_width_height_m
#define PARAM_width_height_va PARAM_width_height_ma
#define PARAM_widthHeight_v PARAM_widthHeight_m
#define PARAM_widthHeight_va PARAM_widthHeight_ma
#define GROUP_width_height_v GROUP_width_height_m
#define GROUP_width_height_va GROUP_width_height_ma
#define GROUP_widthHeight_v GROUP_widthHeight_m
#define GROUP_widthHeight_va GROUP_widthHeight_ma

// In products each operand has sizes of its own, those in which it is stored.
#define PARAM_width_height_1 std::int32_t src1Width, std::int32_t src1Height
#define PARAM_width_height_2 std::int32_t src2Width, std::int32_t src2Height
#define GROUP_width_height_1 qorm::Size(src1Width), qorm::Size(src1Height)
#define GROUP_width_height_2 qorm::Size(src2Width), qorm::Size(src2Height)

// The length of vectors, and that of an operand that has one of its own.
#define PARAM_len_v std::int32_t len
#define PARAM_len_va PARAM_len_v, std::int32_t count
#define GROUP_len_v qorm::Size(len)
#define GROUP_len_va GROUP_len_v, qorm::Count(count)
#define PARAM_len(name) std::int32_t name##Len
#define GROUP_len(name) qorm::Size(name##Len)

// Sizes that cores take behind all operands, and sizes that they do not take.
#define PARAM_lateSizes_1 PARAM_width_height_1
#define GROUP_lateSizes_1 qorm::LateSize(src1Width), qorm::LateSize(src1Height)
#define PARAM_checkedLen(name) std::int32_t name##Len
#define GROUP_checkedLen(name) qorm::CheckedSize(name##Len)

// A number passed by value.
#define PARAM_constant(T, name) T name
#define GROUP_constant(T, name) qorm::Constant<T>(name)

// Scratch of widthHeight * widthHeight elements, which may go with a table of row numbers, or of a
// column's elements, and plain arrays of widthHeight results or of one.
#define PARAM_buffer(T) T* pBuffer
#define GROUP_buffer(T) qorm::Scratch<T>(pBuffer, std::int64_t{widthHeight} * widthHeight)
#define PARAM_rowsBuffer(T) T* pBuffer
#define GROUP_rowsBuffer(T) \
    qorm::Scratch<T>(pBuffer, std::int64_t{widthHeight} * (std::int64_t{widthHeight} + 1))
#define PARAM_columnBuffer(T) T* pBuffer
#define GROUP_columnBuffer(T) qorm::Scratch<T>(pBuffer, height)
#define PARAM_values(T) T* pDstValues
#define GROUP_values(T) qorm::Plain<T>(pDstValues, widthHeight)
#define PARAM_value(T) T* pDst
#define GROUP_value(T) qorm::Plain<T>(pDst, 1)

// The row numbers of pivots, widthHeight of each matrix; a single matrix has one run for all calls of
// a thread.
#define PARAM_pivots_m(T, Index) T* Index
#define PARAM_pivots_ma(T, Index) T* Index
#define GROUP_pivots_m(T, Index) qorm::Plain<T>(Index, 0)
#define GROUP_pivots_ma(T, Index) qorm::Plain<T>(Index, widthHeight)

// Behind a list's last group where array forms go on with their count.
#define PARAM_count_m
#define PARAM_count_ma , std::int32_t count
#define GROUP_count_m
#define GROUP_count_ma , qorm::Count(count)
#define PARAM_count_v PARAM_count_m
#define PARAM_count_va PARAM_count_ma
#define GROUP_count_v GROUP_count_m
#define GROUP_count_va GROUP_count_ma

// QORM_FUNCTION_<destination>_<layout>(name, form, run, ARGUMENTS, ...) is one function of the C
// interface: its form, the run of its core, and ARGUMENTS(PARAM or GROUP, access, ...), its parameter
// list. QORM_REORDERED_... is one whose cores have a parameter list of their own, and QORM_GENERAL_m_S
// one whose only core takes rows of any element stride; these are what a tier defines. Destinations of
// vectors make no difference.
#define QORM_FUNCTION_m_S(name, form, run, ARGUMENTS, ...) \
    QORM_REORDERED_m_S(name, form, run, ARGUMENTS, ARGUMENTS, __VA_ARGS__)
#define QORM_FUNCTION_m_P(name, form, run, ARGUMENTS, ...) \
    QORM_REORDERED_m_P(name, form, run, ARGUMENTS, ARGUMENTS, __VA_ARGS__)
#define QORM_FUNCTION_ma_S(name, form, run, ARGUMENTS, ...) \
    QORM_REORDERED_ma_S(name, form, run, ARGUMENTS, ARGUMENTS, __VA_ARGS__)
#define QORM_FUNCTION_ma_P(name, form, run, ARGUMENTS, ...) \
    QORM_REORDERED_ma_P(name, form, run, ARGUMENTS, ARGUMENTS, __VA_ARGS__)
#define QORM_FUNCTION_ma_L(name, form, run, ARGUMENTS, ...) \
    QORM_REORDERED_ma_L(name, form, run, ARGUMENTS, ARGUMENTS, __VA_ARGS__)
#define QORM_FUNCTION_v_S QORM_FUNCTION_m_S
#define QORM_FUNCTION_v_P QORM_FUNCTION_m_P
#define QORM_FUNCTION_va_S QORM_FUNCTION_ma_S
#define QORM_FUNCTION_va_P QORM_FUNCTION_ma_P
#define QORM_FUNCTION_va_L QORM_FUNCTION_ma_L
#define QORM_REORDERED_v_S QORM_REORDERED_m_S
#define QORM_REORDERED_v_P QORM_REORDERED_m_P
#define QORM_REORDERED_va_S QORM_REORDERED_ma_S
#define QORM_REORDERED_va_P QORM_REORDERED_ma_P
#define QORM_REORDERED_va_L QORM_REORDERED_ma_L

out/wedge1.parm {
prefix	[ 0	locks=0 ]	(	"wedge"	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m1	)
name1	[ 0	locks=0 ]	(	"scale"	)
steps1	[ 0	locks=0 ]	(	3	)
range1	[ 0	locks=0 ]	(	0	1	)
}
out/wedge2.parm {
WedgeMethod	[ 0 ]	(	Channel	)
DRIVER	[ 0 ]	(	/out/m2	)
Name1	[ 0 ]	(	x	)
STEPS1	[ 0 ]	(	2	)
}
obj/net/wedge3.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../../mantra_r3	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
}
out/wedge4.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m4	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	3	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
}
out/wedge5.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m5	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0.25	)
}
out/wedge6.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m6	)
steps2	[ 0	locks=0 ]	(	2	)
name2	[ 0	locks=0 ]	(	seed	)
steps1	[ 0	locks=0 ]	(	3	)
name1	[ 0	locks=0 ]	(	scale	)
range2	[ 0	locks=0 ]	(	5	6	)
}
out/wedge7.parm {
name0	[ 0	locks=0 ]	(	x	)
steps0	[ 0	locks=0 ]	(	9	)
range-1	[ 0	locks=0 ]	(	4	5	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m7	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
stepsize	[ 0	locks=0 ]	(	0	)

# wedgemethod	(	other	)
}
out/wedge8.parm {
wedgemethod	[ 0	locks=0 ]	(	take	)
driver	[ 0	locks=0 ]	(	../m8	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
}
out/wedge9.parm {
driver	[ 0	locks=0 ]	(	../m9	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
}
out/wedge11.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m11	)
}
out/wedge12.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m12	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
name3	[ 0	locks=0 ]	(	z	)
steps3	[ 0	locks=0 ]	(	2	)
}
out/wedge13.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m13	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	0	)
}
out/wedge15.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m15	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
name1001	[ 0	locks=0 ]	(	far	)
range999999	[ 0	locks=0 ]	(	1	2	)
}
out/wedge16.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m16	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
steps2000000000	[ 0	locks=0 ]	(	2	)
}
out/wedge17.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m17	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
namespace	[ 0	locks=0 ]	(	x	)
set -g WLEAK = 'name'
}
out/wedge18.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m18	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)
rangex	[ 0	locks=0 ]	(	1	2	)
set -g RLEAK = 'range'
}
out/wedge19.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m19	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	1	)
range1	[ 0	locks=0 ]	(	0	1	)
}
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
obj/net/../mantra_r3.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m4.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m5.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m6.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m7.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m8.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m9.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m11.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m12.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m13.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m15.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m16.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/m17.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WLEAK_$RLEAK_$WEDGE.$F4.exr"	)
}
out/m18.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WLEAK_$RLEAK_$WEDGE.$F4.exr"	)
}
out/m19.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/w/$OS_$WEDGE.$F4.exr"	)
}
out/wedge20.parm {
wedgemethod	[ 0	locks=0 ]	(	channel	)
driver	[ 0	locks=0 ]	(	../m1	)
name1	[ 0	locks=0 ]	(	s	)
steps1	[ 0	locks=0 ]	(	2	)
range1	[ 0	locks=0 ]	(	0	1	)

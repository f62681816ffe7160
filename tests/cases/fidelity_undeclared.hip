frange 1 240
set -g _HIP_SAVEVERSION = '19.5.303'
obj/render_cam.parm {
res	[ 0	locks=0 ]	(	1280	720	)
}
obj/geo1/file1.parm {
file	[ 0	locks=0 ]	(	"$HIP/geo/in.$F4.bgeo"	)
}
stage/usd_rop1.parm {
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/$OS.usd"	)
}
obj/fx/pyro_sim.parm {
file	[ 0	locks=0 ]	(	"$HIP/geo/pyro.$F4.bgeo"	)
}
out/mantra1.parm {
camera	[ 0	locks=0 ]	(	/obj/render_cam	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/${OS}.$F4.exr"	)
}

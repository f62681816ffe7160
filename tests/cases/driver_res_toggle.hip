set -g _HIP_SAVEVERSION = '19.5.303'
obj/cam1.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/cam2.parm {
res	[ 0	locks=0 ]	(	1001	555	)
}
out/r_none.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/a.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
res_override	[ 0	locks=0 ]	(	640	480	)
}
out/r_partial.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/b.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
res_override	[ 0	locks=0 ]	(	640	0	)
}
out/r_off.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/c.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
override_camerares	[ 0	locks=0 ]	(	"off"	)
res_override	[ 0	locks=0 ]	(	640	480	)
}
out/r_frac.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/d.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/d.$F4.ifd"	)
res_override	[ 0	locks=0 ]	(	640	480	)
override_camerares	[ 0	locks=0 ]	(	"on"	)
res_fraction	[ 0	locks=0 ]	(	0.333	)
}
out/r_half.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/e.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam2	)
res_fraction	[ 0	locks=0 ]	(	0.5	)
override_camerares	[ 0	locks=0 ]	(	"1"	)
res_override	[ 0	locks=0 ]	(	640	480	)
}
out/r_specific.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/f.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
override_camerares	[ 0	locks=0 ]	(	"on"	)
res_fraction	[ 0	locks=0 ]	(	specific	)
res_override	[ 0	locks=0 ]	(	800	600	)
}
out/r_rs.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/g.$F4.exr"	)
RS_renderCamera	[ 0	locks=0 ]	(	/obj/cam1	)
RS_overrideCameraRes	[ 0	locks=0 ]	(	"1"	)
RS_overrideRes	[ 0	locks=0 ]	(	1024	512	)
}
out/r_last.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/h.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
override_camerares	[ 0	locks=0 ]	(	"on"	)
res_override	[ 0	locks=0 ]	(	320	240	)
override_camerares	[ 0	locks=0 ]	(	"off"	)
}
